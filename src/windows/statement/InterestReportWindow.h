#pragma once

#include <memory>

#include "statement/DailyBalances.h"
#include "windows/frame/ReportWindow.h"

namespace Ui {
class InterestReportWindow;
}

namespace corvane {

/// The interest report: date, balance and rate of every day of a statement period.
class InterestReportWindow : public ReportWindow {
  Q_OBJECT

 public:
  explicit InterestReportWindow(WindowRegistry& registry);
  ~InterestReportWindow() override;

  void Form_Activate() override;

  /// Builds the report. It is built before the window shows: the desktop would map a window that
  /// gets its browser later anew, behind the one that it is for.
  void ShowDays(const DailyBalances& daily);

 private:
  ReportContent Content() override;

  std::unique_ptr<Ui::InterestReportWindow> ui_;
  DailyBalances daily_;
};

}  // namespace corvane
