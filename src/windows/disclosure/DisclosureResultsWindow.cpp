#include "windows/disclosure/DisclosureResultsWindow.h"

#include <QtWidgets>

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "disclosure/DisclosureSetup.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/PeriodArrays.h"
#include "platform/WebView.h"
#include "reports/DisclosureReport.h"
#include "ui_DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/MainMenu.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

DisclosureReportEntry PrintedFields(const DisclosureEntry& entry) {
  return {entry.txtBal.text,     entry.txtIntRateA.text,     entry.txtTerm.text,
          entry.txtDiscAPY.text, entry.txtWdrwlPeriods.text, entry.txtBtwnReqIntWdrwl.text};
}

}  // namespace

DisclosureResultsWindow::DisclosureResultsWindow(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::DisclosureResultsWindow>()) {
  ui_->setupUi(this);
  webView_ = new WebView(ui_->fraReport);
  webView_->setObjectName("WebView");
  webView_->setAccessibleName("Report");
  ui_->fraReport->layout()->addWidget(webView_);
  viewer_ = std::make_unique<ReportViewer>(*this, *webView_, kDisclosureReport);
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdAcct, [this] { cmdAcct_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnClick(ui_->cmdPrint, [this] { viewer_->Print(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcct->click(); });
  OnMenu(ui_->mnuSave, [this] { viewer_->SaveAs(Session()); });
  OnMenu(ui_->mnuPrint, [this] { ui_->cmdPrint->click(); });
  OnMenu(ui_->mnuMain, [this] { mnuMain_Click(); });
  BindCommonMenus(kHelpContext);
}

DisclosureResultsWindow::~DisclosureResultsWindow() = default;

void DisclosureResultsWindow::Form_Activate() {
  FocusField(ui_->cmdBack);
  if (!built_) BuildReport();
}

void DisclosureResultsWindow::BuildReport() {
  // Once for the life of the window; a message about the template shows over it.
  built_ = true;
  const DisclosureEntry entry = Windows().Get<DisclosureEntryWindow>().ReadFields();
  viewer_->BuildAndShow(Session(), DisclosureReport(Session(), PrintedFields(entry)));
}

void DisclosureResultsWindow::cmdBack_Click() {
  Session().BackFromResults = false;
  Session().EntryNavState = 2;
  Windows().Get<DisclosureEntryWindow>().Load_Back_Data(EntryBehindResults(Session()));
  Windows().Show<DisclosureEntryWindow>();
  Windows().CloseWindowForNavigation(*this);
}

void DisclosureResultsWindow::ForgetAccount() {
  ForgetEntries(Session());
  Windows().Discard<TierTableWindow>();
}

void DisclosureResultsWindow::cmdAcct_Click() {
  CaptureUserInfo(Session(), HeaderMode::KeepInstitution);
  ForgetAccount();
  Windows().Get<DisclosureSetupWindow>().ShowAccountHeader();
  Windows().Show<DisclosureSetupWindow>();
  Windows().Discard<DisclosureEntryWindow>();
  SizePeriodArrays(Session());
  Session().UseDailyBal = false;
  Session().UseAdb = true;
  Session().DailyBalReset = true;
  Windows().CloseWindowForNavigation(*this);
}

void DisclosureResultsWindow::cmdExit_Click() {
  ForgetAccount();
  CaptureUserInfo(Session(), HeaderMode::ClearAll);
  Windows().Discard<DisclosureEntryWindow>();
  Windows().Discard<DisclosureSetupWindow>();
  Windows().Show<MainMenu>();
  Windows().CloseWindowForNavigation(*this);
}

void DisclosureResultsWindow::mnuMain_Click() {
  ForgetAccount();
  Windows().Get<DisclosureSetupWindow>().ShowAccountHeader();
  if (auto* entry = Windows().Find<DisclosureEntryWindow>()) entry->hide();
  Windows().Show<MainMenu>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
