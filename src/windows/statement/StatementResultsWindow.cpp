#include "windows/statement/StatementResultsWindow.h"

#include <QtWidgets>

#include "account/SessionRecord.h"
#include "platform/WebView.h"
#include "reports/StatementReport.h"
#include "statement/StatementEntry.h"
#include "ui_StatementResultsWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/InterestReportWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementSetupWindow.h"
#include "windows/statement/StatementWindows.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

StatementReportEntry PrintedFields(const StatementSetup& setup, const StatementEntry& entry) {
  return {.txtDCompounding = setup.txtDCompounding.text,
          .optFormulaYes = setup.optFormulaYes,
          .txtMinADB = entry.txtMinADB.text,
          .txtMinDBal = entry.txtMinDBal.text,
          .txtIntRate = entry.txtIntRate.text,
          .txtIntAmt = entry.txtIntAmt.text,
          .txtDClApy = entry.txtDClApy.text,
          .txtLedgerdays = entry.txtLedgerdays.text,
          .txtADBLedgerBalance = entry.txtADBLedgerBalance.text,
          .txtColDays = entry.txtColDays.text,
          .txtADBCollectedBalance = entry.txtADBCollectedBalance.text};
}

}  // namespace

StatementResultsWindow::StatementResultsWindow(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::StatementResultsWindow>()) {
  ui_->setupUi(this);
  webView_ = new WebView(ui_->fraReport);
  webView_->setObjectName("WebViewS");
  webView_->setAccessibleName("Report");
  ui_->fraReport->layout()->addWidget(webView_);
  viewer_ = std::make_unique<ReportViewer>(*this, *webView_, kStatementReport);
  OnClick(ui_->cmdDetail, [this] { cmdDetail_Click(); });
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdAcct, [this] { cmdAcct_Click(); });
  OnClick(ui_->cmdPrint, [this] { viewer_->Print(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcct->click(); });
  OnMenu(ui_->mnuSave, [this] { viewer_->SaveAs(Session()); });
  OnMenu(ui_->mnuPrint, [this] { ui_->cmdPrint->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

StatementResultsWindow::~StatementResultsWindow() = default;

void StatementResultsWindow::Form_Load() {
  ui_->cmdDetail->setEnabled(Session().DetailData);
}

void StatementResultsWindow::Form_Activate() {
  FocusField(ui_->cmdBack);
  if (!built_) BuildReport();
}

void StatementResultsWindow::BuildReport() {
  // Once for the life of the window; a message about the template shows over it.
  built_ = true;
  const StatementSetup setup = Windows().Get<StatementSetupWindow>().ReadFields();
  const StatementEntry entry = Windows().Get<StatementEntryWindow>().ReadFields();
  viewer_->BuildAndShow(Session(), StatementReport(Session(), PrintedFields(setup, entry)));
}

void StatementResultsWindow::cmdDetail_Click() {
  Windows().ShowModal<InterestReportWindow>();
}

void StatementResultsWindow::cmdBack_Click() {
  Windows().Get<StatementSetupWindow>().ShowAccountHeader();
  Session().DetailData = false;
  Windows().Discard<DailyBalancesWindow>();
  Windows().Discard<InterestReportWindow>();
  Windows().Show<StatementEntryWindow>();
  Windows().CloseWindowForNavigation(*this);
}

void StatementResultsWindow::cmdAcct_Click() {
  ShowNewStatementAccount(Windows());
}

void StatementResultsWindow::cmdExit_Click() {
  LeaveStatements(Windows());
}

}  // namespace corvane
