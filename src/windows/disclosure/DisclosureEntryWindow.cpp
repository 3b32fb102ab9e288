#include "windows/disclosure/DisclosureEntryWindow.h"

#include <QtWidgets>

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntryChecks.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/EntrySlips.h"
#include "disclosure/EntryTerm.h"
#include "platform/Pictures.h"
#include "support/Clock.h"
#include "ui_DisclosureEntryWindow.h"
#include "windows/disclosure/EntryParts.h"
#include "windows/disclosure/EntrySurroundings.h"
#include "windows/frame/DateRange.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 3;

/// Controls by which a person leaves the window: nothing is demanded of a field on the way out.
bool LeavesWindow(const QString& control) {
  static const QStringList leaving = {"cmdBack",       "cmdAcctInfo", "cmdExit",
                                      "mnuNewAccount", "mnuMain",     "mnuExit"};
  return leaving.contains(control);
}

}  // namespace

DisclosureEntryWindow::DisclosureEntryWindow(WindowRegistry& registry)
    : Form(registry, Role::Main), ui_(std::make_unique<Ui::DisclosureEntryWindow>()) {
  ui_->setupUi(this);
  NameArrayElements();
  dates_ = std::make_unique<DateRange>(*this, registry, ui_->tStartDate, ui_->tEndDate);
  binding_ =
      std::make_unique<FieldBinding<DisclosureEntry>>(*this, entry_, [this] { ShowTyped(); });
  BindFields();
  BindButtons();
}

DisclosureEntryWindow::~DisclosureEntryWindow() = default;

void DisclosureEntryWindow::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  surroundings_->Place();
}

void DisclosureEntryWindow::BindFields() {
  for (const auto& name : DisclosureEntry::Fields()) {
    SelectTextOnFocus(findChild<QLineEdit*>(name.control));
  }
  FitToDigits(*ui_->txtDailyRateFactor, FieldLength::kFactor);
  BindDecimals(DisclosureEntry::Decimals());
  for (auto* field :
       {ui_->txtBeginMonth, ui_->txtBeginYear, ui_->txtBtwnReqIntWdrwl, ui_->txtWdrwlPeriods}) {
    BindNumeric(field, {});
  }
  BindNumeric(ui_->txtTerm, {.enterMovesOn = true});
  BindNumeric(ui_->txtTierPerNum, {.digitsOnly = true});
  RewriteOnLeaving(ui_->txtBal);
  for (QLineEdit* date : {ui_->tStartDate, ui_->tEndDate}) {
    connect(date, &QLineEdit::textChanged, this, [this] { Date_Change(); });
  }
  for (QLineEdit* field : {ui_->txtDailyRateFactor, ui_->txtBal, ui_->txtIntRateA}) {
    AskOnLeaving(field, [this, field] {
      return SlipOf(session().disclosure, entry_, field->objectName().toStdString());
    });
  }
  connect(ui_->txtTerm, &QLineEdit::textEdited, this, [this] { termEdited_ = true; });
  OnLostFocus(ui_->txtTerm, [this](const QString& next) { txtTerm_LostFocus(next); });
  OnLostFocus(ui_->txtTierPerNum, [this](const QString& next) { txtTierPerNum_LostFocus(next); });
}

void DisclosureEntryWindow::BindButtons() {
  termDates_ = {ui_->tStartDate, ui_->tEndDate};
  for (int index : {0, 1}) {
    auto* calendar = findChild<QToolButton*>(QString("ImgCalendar(%1)").arg(index));
    calendar->setIcon(CalendarIcon());
    OnClick(calendar, [this, index] { ImgCalendar_Click(index); });
    termDates_.push_back(calendar);
  }
  OnClick(ui_->cmdSetProperties, [this] { cmdSetProperties_Click(); });
  OnClick(ui_->cmdCalculateResult, [this] { Attempt(); });
  OnClick(ui_->cmdNext, [this] { Attempt(); });
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdAcctInfo, [this] { routes().NewDisclosure(); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcctInfo->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdNext, ui_->cmdCalculateResult});
  BindCommonMenus(kHelpContext);
}

void DisclosureEntryWindow::Form_Load() {
  surroundings_ = std::make_unique<EntrySurroundings>(*this, session(), *ui_->cmdBack);
  cmdSetProperties_Click();
}

void DisclosureEntryWindow::Form_Activate() {
  for (QLineEdit* field :
       {ui_->txtTierPerNum, ui_->txtBeginMonth, ui_->txtDiscAPY, ui_->txtBal, ui_->txtIntRateA}) {
    if (field->isEnabled()) return FocusField(field);
  }
}

void DisclosureEntryWindow::cmdSetProperties_Click() {
  const DisclosureCheck& check = session().disclosure;
  entry_ = PresentEntry(check);
  if (entry_.txtTerm.workedOut) CountTerm(check.setup, entry_);
  ShowCaptions(*ui_, check);
  ShowGroups(*ui_, check.setup);
  binding_->Show();
  const bool calculates = !check.setup.IsTiered() && IsLastEntry(check);
  ui_->cmdCalculateResult->setVisible(calculates);
  ui_->cmdNext->setVisible(!calculates);
  surroundings_->ShowCheck();
}

void DisclosureEntryWindow::ShowTyped() {
  const DisclosureCheck& check = session().disclosure;
  const bool hasDates = TermDatesEnabled(check, entry_.txtTerm);
  entry_.tStartDate.enabled = entry_.tEndDate.enabled = hasDates;
  for (QWidget* control : termDates_) control->setEnabled(hasDates);
  dates_->ShowCount(TermDatesText(check.setup, entry_));
  surroundings_->ShowTyped(entry_);
}

void DisclosureEntryWindow::txtTerm_LostFocus(const QString& next) {
  const bool edited = std::exchange(termEdited_, false);
  const Field& term = entry_.txtTerm;
  const bool isZero = term.IsNumber() && term.Value() == 0;
  if (isZero && !HasCalendar(session().disclosure.setup) && !LeavesWindow(next)) {
    Tell({"For Interest Compounding Months or Years, please enter valid term"});
    HoldFocus(ui_->txtTerm);
  } else if (edited && !AsksForCalendar(term)) {
    ui_->tStartDate->clear();
    ui_->tEndDate->clear();
  }
}

void DisclosureEntryWindow::txtTierPerNum_LostFocus(const QString& next) {
  const auto refusal = CheckPeriodNumber(entry_.txtTierPerNum);
  if (!refusal || LeavesWindow(next)) return;
  ui_->txtTierPerNum->clear();
  Tell({refusal->text});
  HoldFocus(ui_->txtTierPerNum);
}

void DisclosureEntryWindow::Date_Change() {
  if (binding_->IsShowing()) return;
  CountTerm(session().disclosure.setup, entry_);
  binding_->Show();
}

void DisclosureEntryWindow::ImgCalendar_Click(int index) {
  const bool start = index == 0;
  const Date from = ParseDate(TextOf(dates_->Field(start))).value_or(Today());
  if (!dates_->Pick(start, from)) return;
  Date_Change();
  if (!ParseDate(entry_.tStartDate.text)) {
    Tell({"Starting Date is invalid, Please correct", "tStartDate"});
  }
}

void DisclosureEntryWindow::Attempt() {
  if (IsRateMissing(entry_)) return InternalError();
  CountTerm(session().disclosure.setup, entry_);
  const AttemptOutcome outcome = AttemptCalculation(session().disclosure, entry_);
  binding_->Show();
  if (outcome.refusal) return Tell(*outcome.refusal);
  if (outcome.showsResults) return routes().ShowDisclosureResults();
  cmdSetProperties_Click();
  Form_Activate();
}

void DisclosureEntryWindow::InternalError() {
  Tell({"An internal error has occurred.  When you click OK, the Corvane program will close.", "",
        "Internal Error"});
  windows().EndProgram();
}

void DisclosureEntryWindow::cmdBack_Click() {
  DisclosureCheck& check = session().disclosure;
  if (IsWorthKeeping(check, entry_)) KeepEntry(check, entry_);
  if (check.completed == 0) return routes().BackFromDisclosureEntry();
  --check.completed;
  cmdSetProperties_Click();
  Form_Activate();
}

}  // namespace corvane
