#include "statement/frmInterestReport.h"

#include <QtWidgets>

#include "platform/WebView.h"
#include "reports/InterestReport.h"
#include "shell/SessionRecord.h"
#include "shell/WindowRegistry.h"
#include "ui_frmInterestReport.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

}  // namespace

frmInterestReport::frmInterestReport(WindowRegistry& windows)
    : Form(windows, Role::Secondary), ui_(std::make_unique<Ui::frmInterestReport>()) {
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

frmInterestReport::~frmInterestReport() = default;

void frmInterestReport::Form_Load() {
  // Built before the window shows: the desktop would map a window that gets its browser later anew,
  // behind the one that it is for.
  Create_Web_Report();
}

void frmInterestReport::Form_Activate() {
  FocusField(ui_->cmdExit);
}

void frmInterestReport::Create_Web_Report() {
  viewer_->BuildAndShow(Session(), InterestReport(Session(), {Session().AdditionalApy}));
}

void frmInterestReport::cmdExit_Click() {
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
