#include "windows/statement/InterestReportWindow.h"

#include <QtWidgets>

#include "account/SessionRecord.h"
#include "platform/WebView.h"
#include "reports/InterestReport.h"
#include "ui_InterestReportWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

}  // namespace

InterestReportWindow::InterestReportWindow(WindowRegistry& windows)
    : Form(windows, Role::Secondary), ui_(std::make_unique<Ui::InterestReportWindow>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  webView_ = new WebView(ui_->fraReport);
  webView_->setObjectName("WebViewI");
  webView_->setAccessibleName("Report");
  ui_->fraReport->layout()->addWidget(webView_);
  viewer_ = std::make_unique<ReportViewer>(*this, *webView_, kInterestReport);
  OnClick(ui_->cmdPrint, [this] { viewer_->Print(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuSave, [this] { viewer_->SaveAs(Session()); });
  OnMenu(ui_->mnuPrint, [this] { ui_->cmdPrint->click(); });
  OnMenu(ui_->mnuFileExit, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

InterestReportWindow::~InterestReportWindow() = default;

void InterestReportWindow::Form_Load() {
  // Built before the window shows: the desktop would map a window that gets its browser later anew,
  // behind the one that it is for.
  Create_Web_Report();
}

void InterestReportWindow::Form_Activate() {
  FocusField(ui_->cmdExit);
}

void InterestReportWindow::Create_Web_Report() {
  viewer_->BuildAndShow(Session(), InterestReport(Session(), {Session().AdditionalApy}));
}

void InterestReportWindow::cmdExit_Click() {
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
