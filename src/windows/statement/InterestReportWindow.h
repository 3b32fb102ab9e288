#pragma once

#include <memory>

#include "windows/frame/Form.h"
#include "windows/frame/ReportViewer.h"

namespace Ui {
class InterestReportWindow;
}

namespace corvane {

/// The interest report: balance and rate of every day of the statement period, shown above the
/// window that asked for it.
class InterestReportWindow : public Form {
  Q_OBJECT

 public:
  explicit InterestReportWindow(WindowRegistry& windows);
  ~InterestReportWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

  /// Builds the report from the days in the session record and shows it.
  void Create_Web_Report();

 private:
  void cmdExit_Click();

  std::unique_ptr<Ui::InterestReportWindow> ui_;
  WebView* webView_;
  std::unique_ptr<ReportViewer> viewer_;
};

}  // namespace corvane
