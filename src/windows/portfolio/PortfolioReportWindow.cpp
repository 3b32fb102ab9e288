#include "windows/portfolio/PortfolioReportWindow.h"

#include <QtWidgets>

#include "portfolio/PortfolioReport.h"
#include "ui_PortfolioReportWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 12;

}  // namespace

PortfolioReportWindow::PortfolioReportWindow(WindowRegistry& registry)
    : ReportWindow(registry, Role::Secondary, kPortfolioReport),
      ui_(std::make_unique<Ui::PortfolioReportWindow>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  PlaceView(ui_->fraReport, "WebViewP");
  OnClick(ui_->cmdExit, [this] { windows().Close(*this); });
  OnMenu(ui_->mnuFileExit, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdExit});
  BindCommonMenus(kHelpContext);
}

PortfolioReportWindow::~PortfolioReportWindow() = default;

void PortfolioReportWindow::Form_Activate() {
  FocusField(ui_->cmdExit);
  FocusReport();
}

void PortfolioReportWindow::ShowReport(ReportContent content) {
  content_ = std::move(content);
  BuildReport();
}

}  // namespace corvane
