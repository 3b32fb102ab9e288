#include "statement/frmDisplayResultsStatement.h"

#include <QtWidgets>

#include "platform/WebView.h"
#include "reports/StatementReport.h"
#include "shell/SessionRecord.h"
#include "shell/WindowRegistry.h"
#include "statement/StatementEntry.h"
#include "statement/StatementWindows.h"
#include "statement/frmCallStatement.h"
#include "statement/frmInterestReport.h"
#include "statement/frmInterestbyDay.h"
#include "statement/frmStatementUseandSelect.h"
#include "ui_frmDisplayResultsStatement.h"

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

frmDisplayResultsStatement::frmDisplayResultsStatement(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::frmDisplayResultsStatement>()) {
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

frmDisplayResultsStatement::~frmDisplayResultsStatement() = default;

void frmDisplayResultsStatement::Form_Load() {
  ui_->cmdDetail->setEnabled(Session().DetailData);
}

void frmDisplayResultsStatement::Form_Activate() {
  FocusField(ui_->cmdBack);
  if (!built_) BuildReport();
}

void frmDisplayResultsStatement::BuildReport() {
  // Once for the life of the window; a message about the template shows over it.
  built_ = true;
  const StatementSetup setup = Windows().Get<frmStatementUseandSelect>().ReadFields();
  const StatementEntry entry = Windows().Get<frmCallStatement>().ReadFields();
  viewer_->BuildAndShow(Session(), StatementReport(Session(), PrintedFields(setup, entry)));
}

void frmDisplayResultsStatement::cmdDetail_Click() {
  Windows().ShowModal<frmInterestReport>();
}

void frmDisplayResultsStatement::cmdBack_Click() {
  Windows().Get<frmStatementUseandSelect>().ShowAccountHeader();
  Session().DetailData = false;
  Windows().Discard<frmInterestbyDay>();
  Windows().Discard<frmInterestReport>();
  Windows().Show<frmCallStatement>();
  Windows().CloseWindowForNavigation(*this);
}

void frmDisplayResultsStatement::cmdAcct_Click() {
  ShowNewStatementAccount(Windows());
}

void frmDisplayResultsStatement::cmdExit_Click() {
  LeaveStatements(Windows());
}

}  // namespace corvane
