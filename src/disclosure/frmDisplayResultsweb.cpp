#include "disclosure/frmDisplayResultsweb.h"

#include <QtWidgets>

#include "disclosure/AccountSetup.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/frmAcctAdvertAPY.h"
#include "disclosure/frmAcctRegularStepped.h"
#include "disclosure/frmAcctTieredAB.h"
#include "formulas/PeriodArrays.h"
#include "platform/WebView.h"
#include "reports/DisclosureReport.h"
#include "shell/AccountHeader.h"
#include "shell/SessionRecord.h"
#include "shell/WindowRegistry.h"
#include "shell/frmMain.h"
#include "ui_frmDisplayResultsweb.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

DisclosureReportEntry PrintedFields(const DisclosureEntry& entry) {
  return {entry.txtBal.text,     entry.txtIntRateA.text,     entry.txtTerm.text,
          entry.txtDiscAPY.text, entry.txtWdrwlPeriods.text, entry.txtBtwnReqIntWdrwl.text};
}

}  // namespace

frmDisplayResultsweb::frmDisplayResultsweb(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::frmDisplayResultsweb>()) {
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

frmDisplayResultsweb::~frmDisplayResultsweb() = default;

void frmDisplayResultsweb::Form_Activate() {
  FocusField(ui_->cmdBack);
  if (!built_) BuildReport();
}

void frmDisplayResultsweb::BuildReport() {
  // Once for the life of the window; a message about the template shows over it.
  built_ = true;
  const DisclosureEntry entry = Windows().Get<frmAcctRegularStepped>().ReadFields();
  viewer_->BuildAndShow(Session(), DisclosureReport(Session(), PrintedFields(entry)));
}

void frmDisplayResultsweb::cmdBack_Click() {
  Session().BackFromResults = false;
  Session().EntryNavState = 2;
  Windows().Get<frmAcctRegularStepped>().Load_Back_Data(EntryBehindResults(Session()));
  Windows().Show<frmAcctRegularStepped>();
  Windows().CloseWindowForNavigation(*this);
}

void frmDisplayResultsweb::ForgetAccount() {
  ForgetEntries(Session());
  Windows().Discard<frmAcctTieredAB>();
}

void frmDisplayResultsweb::cmdAcct_Click() {
  CaptureUserInfo(Session(), HeaderMode::KeepInstitution);
  ForgetAccount();
  Windows().Get<frmAcctAdvertAPY>().ShowAccountHeader();
  Windows().Show<frmAcctAdvertAPY>();
  Windows().Discard<frmAcctRegularStepped>();
  SizePeriodArrays(Session());
  Session().UseDailyBal = false;
  Session().UseAdb = true;
  Session().DailyBalReset = true;
  Windows().CloseWindowForNavigation(*this);
}

void frmDisplayResultsweb::cmdExit_Click() {
  ForgetAccount();
  CaptureUserInfo(Session(), HeaderMode::ClearAll);
  Windows().Discard<frmAcctRegularStepped>();
  Windows().Discard<frmAcctAdvertAPY>();
  Windows().Show<frmMain>();
  Windows().CloseWindowForNavigation(*this);
}

void frmDisplayResultsweb::mnuMain_Click() {
  ForgetAccount();
  Windows().Get<frmAcctAdvertAPY>().ShowAccountHeader();
  if (auto* entry = Windows().Find<frmAcctRegularStepped>()) entry->hide();
  Windows().Show<frmMain>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
