#include "windows/statement/InterestReportWindow.h"

#include <QtWidgets>

#include "reports/InterestReport.h"
#include "support/Clock.h"
#include "ui_InterestReportWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 11;

}  // namespace

InterestReportWindow::InterestReportWindow(WindowRegistry& registry)
    : ReportWindow(registry, Role::Secondary, kInterestReport),
      ui_(std::make_unique<Ui::InterestReportWindow>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  PlaceView(ui_->fraReport, "WebViewI");
  OnClick(ui_->cmdExit, [this] { windows().Close(*this); });
  OnMenu(ui_->mnuFileExit, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdExit});
  BindCommonMenus(kHelpContext);
}

InterestReportWindow::~InterestReportWindow() = default;

void InterestReportWindow::Form_Activate() {
  FocusField(ui_->cmdExit);
  FocusReport();
}

void InterestReportWindow::ShowDays(const DailyBalances& daily) {
  daily_ = daily;
  BuildReport();
}

ReportContent InterestReportWindow::Content() {
  return InterestReport(session().header, session().statement, daily_, Today());
}

}  // namespace corvane
