#include "windows/statement/StatementEntryWindow.h"

#include <QtWidgets>

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "platform/Pictures.h"
#include "statement/InterestMethod.h"
#include "statement/PeriodicRateFactor.h"
#include "statement/StatementAccount.h"
#include "statement/StatementCalculation.h"
#include "statement/StatementCompute.h"
#include "statement/StatementPeriod.h"
#include "support/Clock.h"
#include "ui_StatementEntryWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/StatementResultsWindow.h"
#include "windows/statement/StatementSetupWindow.h"
#include "windows/statement/StatementWindows.h"

namespace corvane {

namespace {

using Entry = StatementEntry;

constexpr int kHelpContext = 9;

constexpr FieldName<Entry> kFields[] = {
    {"txtDateStart", &Entry::txtDateStart},
    {"txtDateEnd", &Entry::txtDateEnd},
    {"txtMinADB", &Entry::txtMinADB},
    {"txtMinDBal", &Entry::txtMinDBal},
    {"txtDClApy", &Entry::txtDClApy},
    {"txtIntRate", &Entry::txtIntRate},
    {"txtDRFactor", &Entry::txtDRFactor},
    {"txtLedgerdays", &Entry::txtLedgerdays},
    {"txtADBLedgerBalance", &Entry::txtADBLedgerBalance},
    {"txtColDays", &Entry::txtColDays},
    {"txtADBCollectedBalance", &Entry::txtADBCollectedBalance},
    {"txtIntAmt", &Entry::txtIntAmt},
};

constexpr FlagName<Entry> kOptions[] = {
    {"optDailyBal", &Entry::optDailyBal},   {"optADB", &Entry::optADB},
    {"optLColl_Yes", &Entry::optLColl_Yes}, {"optLColl_No", &Entry::optLColl_No},
    {"optLADBYes", &Entry::optLADBYes},     {"optLADBNo", &Entry::optLADBNo},
};

constexpr FlagName<Entry> kGroups[] = {
    {"fraIntCalcMethod", &Entry::fraIntCalcMethod},
    {"Frame4", &Entry::Frame4},
    {"cmdComputeLADB", &Entry::cmdComputeLADB},
    {"cmdComputeCADB", &Entry::cmdComputeCADB},
};

}  // namespace

StatementEntryWindow::StatementEntryWindow(WindowRegistry& windows)
    : Form(windows, Role::Main),
      ui_(std::make_unique<Ui::StatementEntryWindow>()),
      fields_(std::make_unique<FieldBinding<Entry>>(*this, kFields, kOptions, kGroups)) {
  ui_->setupUi(this);
  BindFields();
  BindOptions();
  BindButtons();
}

StatementEntryWindow::~StatementEntryWindow() = default;

void StatementEntryWindow::BindFields() {
  for (const auto& name : kFields) SelectTextOnFocus(findChild<QLineEdit*>(name.control));
  const NumericRule balance{.repairMinus = true, .decimals = 2, .kind = "bal"};
  for (QLineEdit* field :
       {ui_->txtADBLedgerBalance, ui_->txtADBCollectedBalance, ui_->txtMinADB, ui_->txtMinDBal}) {
    BindNumeric(field, balance);
    RewriteOnLeaving(field);
  }
  BindNumeric(ui_->txtIntRate, {.repairMinus = true, .decimals = 4, .kind = "int"});
  BindNumeric(ui_->txtDClApy, {.repairMinus = true, .decimals = 2, .kind = "apy"});
  BindNumeric(ui_->txtIntAmt, {.repairMinus = true, .decimals = 2, .kind = "userint"});
  RewriteOnLeaving(ui_->txtIntAmt);
  for (QLineEdit* days : {ui_->txtLedgerdays, ui_->txtColDays}) {
    BindNumeric(days, {.enterMovesOn = true});
    OnLostFocus(days, [this](const QString& next) { Days_LostFocus(next); });
  }
  OnChange(ui_->txtDRFactor, [this] { txtDRFactor_Change(); });
}

void StatementEntryWindow::BindOptions() {
  const auto on = [this](QRadioButton* option, auto choose, bool value) {
    OnOption(option, [this, choose, value] {
      Change([this, choose, value](Entry& entry) { choose(Session(), entry, value); });
    });
  };
  on(ui_->optADB, ChooseMethod, true);
  on(ui_->optDailyBal, ChooseMethod, false);
  on(ui_->optLColl_Yes, ChooseLedgerEqualsCollected, true);
  on(ui_->optLColl_No, ChooseLedgerEqualsCollected, false);
  on(ui_->optLADBYes, ChooseLedgerAdb, true);
  on(ui_->optLADBNo, ChooseLedgerAdb, false);
}

void StatementEntryWindow::BindButtons() {
  ui_->ImgCalendar->setIcon(CalendarIcon());
  OnClick(ui_->ImgCalendar, [this] { ImgCalendar_Click(); });
  OnClick(ui_->cmdComputeLADB, [this] { Compute_Click(BalanceColumn::Ledger); });
  OnClick(ui_->cmdComputeCADB, [this] { Compute_Click(BalanceColumn::Collected); });
  OnClick(ui_->cmdCalculate, [this] { cmdCalculate_Click(); });
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdNewAcct, [this] { cmdNewAcct_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdNewAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

void StatementEntryWindow::Form_Activate() {
  InitStatementEntry();
  FocusField(ui_->txtDateStart);
}

void StatementEntryWindow::InitStatementEntry() {
  ui_->lblTopic->setText(kStatementTopic);
  ui_->lblAccountInfo->setText(QString::fromStdString(AccountInfoText(Session())));
  const bool justMade = std::exchange(justMade_, false);
  Change(
      [this, justMade](Entry& entry) { corvane::InitStatementEntry(Session(), entry, justMade); });
}

StatementEntry StatementEntryWindow::ReadFields() const {
  StatementEntry entry = fields_->Read();
  entry.lblAddAPY = ui_->lblAddAPY->isVisibleTo(this);
  return entry;
}

void StatementEntryWindow::WriteFields(const StatementEntry& entry) {
  fields_->Write(entry);
  ui_->lblAddAPY->setVisible(entry.lblAddAPY);
  ui_->lblIntType->setText(QString::fromStdString(InterestTypeText(entry)));
  RefreshFieldColors(entry);
}

void StatementEntryWindow::RefreshFieldColors(const StatementEntry& entry) {
  // Grey and white of the fields follow from the palette's disabled and active groups.
  ui_->ImgCalendar->setEnabled(CalendarEnabled(entry));
}

void StatementEntryWindow::Change(const std::function<void(StatementEntry&)>& change) {
  if (fields_->IsWriting()) return;
  StatementEntry entry = ReadFields();
  change(entry);
  WriteFields(entry);
}

void StatementEntryWindow::txtDRFactor_Change() {
  if (fields_->IsWriting()) return;
  if (const auto refusal = FactorChanged(Session(), ReadFields())) Tell(*refusal);
}

void StatementEntryWindow::Days_LostFocus(const QString& next) {
  if (!LeavingCountsPeriod(next.toStdString())) return;
  std::optional<Refusal> refusal;
  Change([this, &refusal](Entry& entry) {
    refusal = CheckStatementPeriod(Session(), entry, PeriodCaller::DaysField);
  });
  if (!refusal) return;
  Tell({refusal->text, ""});
  // A button that was about to act must not go on to tell of the same dates again.
  HoldFocus(findChild<QWidget*>(QString::fromStdString(refusal->field)));
  // The mouse press that took the focus still reaches its button; its release went to the message.
  QTimer::singleShot(0, this, [this, next] {
    if (auto* pressed = findChild<QAbstractButton*>(next)) pressed->setDown(false);
  });
}

bool StatementEntryWindow::PickDate(QLineEdit* field) {
  Date date = ParseDate(FieldText(field)).value_or(Today());
  if (!Windows().Get<CalendarPopup>().GetDate(date)) return false;
  SetFieldText(field, FormatDate(date));
  return true;
}

void StatementEntryWindow::ImgCalendar_Click() {
  const DatesToAsk ask = DatesForCalendar(ReadFields());
  if (ask.start && !PickDate(ui_->txtDateStart)) return;
  if (ask.end && !PickDate(ui_->txtDateEnd)) return;
  std::optional<Refusal> refusal;
  Change([this, &refusal](Entry& entry) {
    refusal = CheckStatementPeriod(Session(), entry, PeriodCaller::Calendar);
  });
  if (refusal) Tell(*refusal);
}

bool StatementEntryWindow::Passes(const CheckOutcome& outcome) {
  if (outcome.notice) Tell(*outcome.notice);
  if (outcome.refusal) Tell(*outcome.refusal);
  return !outcome.refusal;
}

void StatementEntryWindow::Compute_Click(BalanceColumn column) {
  StatementEntry entry = ReadFields();
  const BeforeCompute before = Remember(Session(), entry);
  const CheckOutcome outcome = StartCompute(Session(), entry, column);
  WriteFields(entry);
  if (!Passes(outcome)) return;
  Windows().Get<DailyBalancesWindow>().EnterDays(entry.txtIntRate.Value());
  if (Session().ComputeFlag) {
    CancelCompute(Session(), entry, before);
  } else {
    FinishCompute(Session(), entry, column);
  }
  WriteFields(entry);
}

void StatementEntryWindow::cmdCalculate_Click() {
  StatementEntry entry = ReadFields();
  const CheckOutcome outcome = CalculateStatement(Session(), entry);
  WriteFields(entry);
  if (!Passes(outcome)) return;
  Windows().Discard<StatementResultsWindow>();
  Windows().Show<StatementResultsWindow>();
  hide();
}

void StatementEntryWindow::cmdBack_Click() {
  if (Session().AcctTierA || Session().AcctTierB) {
    Windows().Show<TierTableWindow>();
  } else {
    Windows().Get<StatementSetupWindow>().ShowAccountHeader();
    Windows().Show<StatementSetupWindow>();
  }
  hide();
}

void StatementEntryWindow::cmdNewAcct_Click() {
  ShowNewStatementAccount(Windows());
}

void StatementEntryWindow::cmdExit_Click() {
  LeaveStatements(Windows());
}

}  // namespace corvane
