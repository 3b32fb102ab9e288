#pragma once

#include <memory>

#include "windows/frame/ReportWindow.h"

namespace Ui {
class PortfolioReportWindow;
}

namespace corvane {

/// The report of a whole file, above its table.
class PortfolioReportWindow : public ReportWindow {
  Q_OBJECT

 public:
  explicit PortfolioReportWindow(WindowRegistry& registry);
  ~PortfolioReportWindow() override;

  void Form_Activate() override;

  /// Builds the report, before the window shows.
  void ShowReport(ReportContent content);

 private:
  ReportContent Content() override { return content_; }

  std::unique_ptr<Ui::PortfolioReportWindow> ui_;
  ReportContent content_;
};

}  // namespace corvane
