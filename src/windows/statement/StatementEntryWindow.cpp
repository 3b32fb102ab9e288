#include "windows/statement/StatementEntryWindow.h"

#include <QtWidgets>

#include "account/SlipNotice.h"
#include "platform/Pictures.h"
#include "statement/StatementContext.h"
#include "support/Clock.h"
#include "ui_StatementEntryWindow.h"
#include "windows/frame/ContextLine.h"
#include "windows/frame/DateRange.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 9;

}  // namespace

StatementEntryWindow::StatementEntryWindow(WindowRegistry& registry)
    : Form(registry, Role::Main), ui_(std::make_unique<Ui::StatementEntryWindow>()) {
  ui_->setupUi(this);
  binding_ = std::make_unique<FieldBinding<StatementEntry>>(
      *this, Entry(), [this] { ShowGroups(); }, [this] { FollowChanges(session().statement); });
  dates_ = std::make_unique<DateRange>(*this, registry, ui_->txtDateStart, ui_->txtDateEnd,
                                       ui_->lblDateCount);
  BindFields();
  BindButtons();
}

StatementEntryWindow::~StatementEntryWindow() = default;

StatementEntry& StatementEntryWindow::Entry() {
  return session().statement.entry;
}

void StatementEntryWindow::BindFields() {
  for (const auto& name : StatementEntry::Fields()) {
    SelectTextOnFocus(findChild<QLineEdit*>(name.control));
  }
  for (QLineEdit* field :
       {ui_->txtADBLedgerBalance, ui_->txtADBCollectedBalance, ui_->txtMinADB, ui_->txtMinDBal}) {
    RewriteOnLeaving(field);
  }
  FitToDigits(*ui_->txtDRFactor, FieldLength::kFactor);
  BindDecimals(StatementEntry::Decimals());
  RewriteOnLeaving(ui_->txtIntAmt);
  for (QLineEdit* days : {ui_->txtLedgerdays, ui_->txtColDays}) {
    BindNumeric(days, {.enterMovesOn = true});
    OnLostFocus(days, [this](const QString& next) { Days_LostFocus(next); });
  }
  AskOnLeaving(ui_->txtDRFactor, [this] { return FactorNotice(Entry().txtDRFactor.text); });
  connect(ui_->txtDRFactor, &QLineEdit::textChanged, this, [this] { txtDRFactor_Change(); });
}

void StatementEntryWindow::BindButtons() {
  ui_->ImgCalendar->setIcon(CalendarIcon());
  OnClick(ui_->ImgCalendar, [this] { ImgCalendar_Click(); });
  OnClick(ui_->cmdComputeLADB, [this] { Compute_Click(BalanceColumn::Ledger); });
  OnClick(ui_->cmdComputeCADB, [this] { Compute_Click(BalanceColumn::Collected); });
  OnClick(ui_->cmdCalculate, [this] { cmdCalculate_Click(); });
  OnClick(ui_->cmdBack, [this] { routes().BackFromStatementEntry(); });
  OnClick(ui_->cmdNewAcct, [this] { routes().NewStatement(); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdNewAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdCalculate});
  BindCommonMenus(kHelpContext);
}

void StatementEntryWindow::Form_Load() {
  const StatementSetup& setup = session().statement.setup;
  AddContextLine("lblContext")->ShowContext(ContextOf(session().header, setup));
  ui_->lblTopic->setText("  APY Earned For Periodic Statement  ");
  ui_->lblAccountInfo->setText(QString::fromStdString(AccountInfoText(setup)));
  ui_->lblAddAPY->setVisible(setup.additionalFormula);
  Entry() = PresentEntry(setup, Entry());
  FollowChanges(session().statement);
  binding_->Show();
}

void StatementEntryWindow::Form_Activate() {
  FocusField(ui_->txtDateStart);
}

void StatementEntryWindow::ShowGroups() {
  const StatementEntry& entry = Entry();
  dates_->ShowCount(PeriodDatesText(session().statement.setup.year, entry));
  ui_->fraIntCalcMethod->setEnabled(!LocksMethod(session().statement.setup));
  ui_->Frame4->setEnabled(entry.basis != BalanceBasis::Equal);
  ui_->cmdComputeLADB->setEnabled(entry.txtADBLedgerBalance.enabled);
  ui_->cmdComputeCADB->setEnabled(entry.txtADBCollectedBalance.enabled);
  ui_->lblIntType->setText(QString::fromStdString(InterestTypeText(entry)));
  const std::string note = InterestNoteText(entry);
  ui_->lblIntNote->setText(QString::fromStdString(note));
  ui_->lblIntNote->setVisible(!note.empty());
  ShowNextStep(NextStepOfEntry(entry));
}

void StatementEntryWindow::txtDRFactor_Change() {
  if (binding_->IsShowing()) return;
  if (const auto refusal = FactorChanged(Entry())) Tell(*refusal);
}

void StatementEntryWindow::Days_LostFocus(const QString& next) {
  if (!LeavingCountsPeriod(next.toStdString())) return;
  const auto refusal =
      CountPeriod(session().statement.setup.year, Entry(), PeriodCaller::DaysField);
  binding_->Show();
  if (!refusal) return;
  Tell({refusal->text});
  // A button that was about to act must not go on to tell of the same dates again.
  HoldFocus(findChild<QWidget*>(QString::fromStdString(refusal->field)));
  // The mouse press that took the focus still reaches its button; its release went to the message.
  QTimer::singleShot(0, this, [this, next] {
    if (auto* pressed = findChild<QAbstractButton*>(next)) pressed->setDown(false);
  });
}

bool StatementEntryWindow::AskDate(bool start, const Date& from) {
  return dates_->Pick(start, from) || TextOf(dates_->Field(start)) != kEmptyDateMask;
}

void StatementEntryWindow::ImgCalendar_Click() {
  const DatesToAsk ask = DatesForCalendar(Entry());
  if (ask.start && !AskDate(true, PeriodStart(Entry(), Today()))) return;
  if (ask.end && !AskDate(false, CalendarOfEnd(Entry(), Today()))) return;
  const auto refusal = CountPeriod(session().statement.setup.year, Entry(), PeriodCaller::Calendar);
  binding_->Show();
  if (refusal) Tell(*refusal);
}

bool StatementEntryWindow::Passes(const CheckOutcome& outcome) {
  binding_->Show();
  if (outcome.notice) Tell(*outcome.notice);
  if (outcome.refusal) {
    Tell(*outcome.refusal);
    return false;
  }
  const StatementCheck& check = session().statement;
  if (const auto notice = DaysNotice(check.setup.year, check.entry)) Tell(*notice);
  return true;
}

void StatementEntryWindow::Compute_Click(BalanceColumn column) {
  StatementCheck& check = session().statement;
  const StatementCheck before = check;
  if (!Passes(StartCompute(check, column))) return;
  DailyBalances daily = DaysOf(check, column, Today());
  if (const auto computed = routes().EnterDays(daily)) {
    FinishCompute(check, daily, *computed);
  } else {
    check = CancelledCompute(before, daily);
  }
  binding_->Show();
}

void StatementEntryWindow::cmdCalculate_Click() {
  if (Passes(CalculateStatement(session().statement))) routes().ShowStatementResults();
}

}  // namespace corvane
