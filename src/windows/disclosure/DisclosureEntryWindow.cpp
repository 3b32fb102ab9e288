#include "windows/disclosure/DisclosureEntryWindow.h"

#include <QtWidgets>

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "disclosure/DisclosureCalculation.h"
#include "disclosure/DisclosureSetup.h"
#include "disclosure/EntryChecks.h"
#include "disclosure/EntryLayout.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/EntryTerm.h"
#include "disclosure/PeriodArrays.h"
#include "disclosure/PeriodStore.h"
#include "platform/MessageBox.h"
#include "platform/Pictures.h"
#include "support/Clock.h"
#include "support/NumberText.h"
#include "ui_DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/MainMenu.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 3;
constexpr int kStartDate = 0;

/// Controls by which a person leaves the window: nothing is demanded of a field on the way out.
bool LeavesWindow(const QString& control) {
  static const QStringList leaving = {"cmdBack",       "cmdAcctInfo", "cmdExit",
                                      "mnuNewAccount", "mnuMain",     "mnuExit"};
  return leaving.contains(control);
}

bool BelongsToTermDates(const QString& control) {
  return control == "tStartDate" || control == "tEndDate" || control.startsWith("ImgCalendar");
}

}  // namespace

DisclosureEntryWindow::DisclosureEntryWindow(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::DisclosureEntryWindow>()) {
  ui_->setupUi(this);
  NameArrayElements();
  BindFields();
  BindButtons();
}

DisclosureEntryWindow::~DisclosureEntryWindow() = default;

void DisclosureEntryWindow::BindFields() {
  for (const EntryFieldName& known : kEntryFields) SelectTextOnFocus(Field(known.name));
  BindNumeric(ui_->txtBal, {.repairMinus = true, .decimals = 2, .kind = "bal"});
  BindNumeric(ui_->txtIntRateA, {.repairMinus = true, .decimals = 4, .kind = "int"});
  BindNumeric(ui_->txtDiscAPY, {.repairMinus = true, .decimals = 2, .kind = "apy"});
  for (auto* field :
       {ui_->txtBeginMonth, ui_->txtBeginYear, ui_->txtBtwnReqIntWdrwl, ui_->txtWdrwlPeriods}) {
    BindNumeric(field, {});
  }
  BindNumeric(ui_->txtTerm, {.enterMovesOn = true});
  BindNumeric(ui_->txtTierPerNum, {.digitsOnly = true});
  RewriteOnLeaving(ui_->txtBal);
  OnLostFocus(ui_->txtBal, [this](const QString&) { txtBal_LostFocus(); });
  OnChange(ui_->txtTerm, [this] { txtTerm_Change(); });
  connect(ui_->txtTerm, &QLineEdit::textEdited, this, [this] { Session().TermEntryFlag = true; });
  OnLostFocus(ui_->txtTerm, [this](const QString& next) { txtTerm_LostFocus(next); });
  OnLostFocus(ui_->txtTierPerNum, [this](const QString& next) { txtTierPerNum_LostFocus(next); });
}

void DisclosureEntryWindow::BindButtons() {
  for (int index : {0, 1}) {
    imgCalendar_[index] = findChild<QToolButton*>(QString("ImgCalendar(%1)").arg(index));
    imgCalendar_[index]->setIcon(CalendarIcon());
    OnClick(imgCalendar_[index], [this, index] { ImgCalendar_Click(index); });
  }
  for (QWidget* control :
       {static_cast<QWidget*>(ui_->tStartDate), static_cast<QWidget*>(ui_->tEndDate),
        static_cast<QWidget*>(imgCalendar_[0]), static_cast<QWidget*>(imgCalendar_[1])}) {
    OnLostFocus(control, [this](const QString& next) { TermDates_LostFocus(next); });
  }
  OnClick(ui_->cmdSetProperties, [this] { cmdSetProperties_Click(); });
  OnClick(ui_->cmdCalculateResult, [this] { Attempt(); });
  OnClick(ui_->cmdNext, [this] { Attempt(); });
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdAcctInfo, [this] { cmdAcctInfo_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcctInfo->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

void DisclosureEntryWindow::Form_Load() {
  cmdSetProperties_Click();
}

void DisclosureEntryWindow::Form_Activate() {
  for (QLineEdit* field :
       {ui_->txtTierPerNum, ui_->txtBeginMonth, ui_->txtDiscAPY, ui_->txtBal, ui_->txtIntRateA}) {
    if (field->isEnabled()) return FocusField(field);
  }
}

QLineEdit* DisclosureEntryWindow::Field(const char* name) const {
  return findChild<QLineEdit*>(name);
}

DisclosureEntry DisclosureEntryWindow::ReadFields() const {
  DisclosureEntry entry;
  for (const EntryFieldName& known : kEntryFields) {
    const QLineEdit* field = Field(known.name);
    entry.*known.field = {FieldText(field), field->isEnabled()};
  }
  return entry;
}

void DisclosureEntryWindow::WriteFields(const DisclosureEntry& entry) {
  for (const EntryFieldName& known : kEntryFields) {
    QLineEdit* field = Field(known.name);
    const EntryField& wanted = entry.*known.field;
    if (FieldText(field) != wanted.text) SetFieldText(field, wanted.text);
    field->setEnabled(wanted.enabled);
  }
  EnableTermDates();
}

void DisclosureEntryWindow::cmdSetProperties_Click() {
  Session().ComputedInterest = 0;
  Session().TierInterestTotal = 0;
  NumberCurrentEntry(Session());
  ShowCaptions();
  ShowGroups();
  ShowEntry();
}

void DisclosureEntryWindow::ShowEntry() {
  WriteFields(PresentEntry(Session(), ReadFields()));
  const bool calculates = !IsTiered(Session()) && IsLastEntry(Session());
  ui_->cmdCalculateResult->setVisible(calculates);
  ui_->cmdNext->setVisible(!calculates);
}

void DisclosureEntryWindow::Load_Back_Data(int period) {
  Session().PeriodCount = static_cast<std::int16_t>(period - 1);
  cmdSetProperties_Click();
}

void DisclosureEntryWindow::ShowCaptions() {
  const EntryCaptions captions = CaptionsFor(Session());
  const std::pair<QLabel*, const std::string&> labels[] = {
      {ui_->lblAcctType, captions.lblAcctType},
      {ui_->lblMethod, captions.lblMethod},
      {ui_->lblAcctInfo, captions.lblAcctInfo},
      {ui_->lblPerMessage, captions.lblPerMessage},
      {ui_->lblTierPerNum, captions.lblTierPerNum},
      {ui_->lblDays, captions.lblDays},
      {ui_->lblReqIntWdrwl, captions.lblReqIntWdrwl},
      {ui_->lblPeriodNumber, captions.lblPeriodNumber},
      {ui_->lblHighLowEnd, captions.lblHighLowEnd},
  };
  for (const auto& [label, text] : labels) label->setText(QString::fromStdString(text));
  ui_->frmPeriodNumber->setTitle(QString::fromStdString(captions.frmPeriodNumber));
}

void DisclosureEntryWindow::ShowGroups() {
  const EntryGroups groups = GroupsFor(Session());
  ui_->frmPeriodNumber->setVisible(groups.periodNumber);
  ui_->frmDateRange->setVisible(groups.dateRange);
  ui_->frmTermDates->setVisible(groups.termDates);
  ui_->frmIntWithDrawal->setVisible(groups.withdrawal);
  ui_->lblMethod->setVisible(IsTiered(Session()));
  ui_->lblPeriodNumber->setVisible(groups.periodNumber);
  ui_->lblHighLowEnd->setVisible(Session().AcctTierB);
}

void DisclosureEntryWindow::EnableTermDates() {
  const bool enabled = TermDatesEnabled(Session(), FieldText(ui_->txtTerm));
  for (QWidget* control :
       {static_cast<QWidget*>(ui_->tStartDate), static_cast<QWidget*>(ui_->tEndDate),
        static_cast<QWidget*>(imgCalendar_[0]), static_cast<QWidget*>(imgCalendar_[1])}) {
    control->setEnabled(enabled);
  }
}

void DisclosureEntryWindow::EmptyTermDates() {
  ui_->tStartDate->clear();
  ui_->tEndDate->clear();
}

void DisclosureEntryWindow::txtBal_LostFocus() {
  Session().Balance = NumericValue(FieldText(ui_->txtBal));
}

void DisclosureEntryWindow::txtTerm_Change() {
  EnableTermDates();
}

void DisclosureEntryWindow::txtTerm_LostFocus(const QString& next) {
  const std::string term = FieldText(ui_->txtTerm);
  const bool edited = Session().TermEntryFlag;
  Session().TermEntryFlag = false;
  const bool isZero = !Trim(term).empty() && AsksForCalendar(term);
  if (isZero && !HasCalendar(Session()) && !LeavesWindow(next)) {
    Tell({"For Interest Compounding Months or Years, please enter valid term", ""});
    HoldFocus(ui_->txtTerm);
  } else if (edited && !AsksForCalendar(term)) {
    EmptyTermDates();
  }
}

void DisclosureEntryWindow::txtTierPerNum_LostFocus(const QString& next) {
  const auto refusal = CheckPeriodNumber(Session(), FieldText(ui_->txtTierPerNum));
  if (!refusal || LeavesWindow(next)) return;
  ui_->txtTierPerNum->clear();
  Tell({refusal->text, ""});
  HoldFocus(ui_->txtTierPerNum);
}

void DisclosureEntryWindow::TermDates_LostFocus(const QString& next) {
  if (!BelongsToTermDates(next)) WriteCountedTerm();
}

void DisclosureEntryWindow::WriteCountedTerm() {
  const DisclosureEntry entry = ReadFields();
  if (!TermOf(Session(), entry).fromCalendar) return;
  if (const auto term = CountedTermText(Session(), entry)) SetFieldText(ui_->txtTerm, *term);
}

void DisclosureEntryWindow::ImgCalendar_Click(int index) {
  QLineEdit* field = index == kStartDate ? ui_->tStartDate : ui_->tEndDate;
  Date date = ParseDate(FieldText(field)).value_or(Today());
  if (Windows().Get<CalendarPopup>().GetDate(date)) SetFieldText(field, FormatDate(date));
  if (!ParseDate(FieldText(ui_->tStartDate))) {
    Tell({"Starting Date is invalid, Please correct", "tStartDate"});
    return;
  }
  WriteCountedTerm();
}

void DisclosureEntryWindow::Attempt() {
  DisclosureEntry entry = ReadFields();
  if (IsRateMissing(entry)) return InternalError();
  const AttemptOutcome outcome = AttemptCalculation(Session(), entry);
  WriteFields(entry);
  if (outcome.refusal) return Tell(*outcome.refusal);
  Session().EntryNavState = 1;
  if (outcome.showsResults) return ShowResults();
  cmdSetProperties_Click();
  Form_Activate();
}

void DisclosureEntryWindow::ShowResults() {
  Windows().Discard<DisclosureResultsWindow>();
  Windows().Show<DisclosureResultsWindow>();
  hide();
}

void DisclosureEntryWindow::InternalError() {
  Tell({"An internal error has occurred.  When you click OK, the Corvane program will close.", "",
        "Internal Error"});
  Windows().EndProgram();
}

void DisclosureEntryWindow::cmdBack_Click() {
  const DisclosureEntry entry = ReadFields();
  const int current = CurrentEntry(Session());
  if (IsWorthKeeping(Session(), entry)) StoreEntry(Session(), current, entry);
  Session().EntryNavState = 2;
  if (current == 1) return LeaveBackward();
  Load_Back_Data(current - 1);
  Form_Activate();
}

void DisclosureEntryWindow::LeaveBackward() {
  Session().EntryDataKept = true;
  if (IsTiered(Session())) {
    Windows().Show<TierTableWindow>();
  } else {
    Windows().Get<DisclosureSetupWindow>().ShowAccountHeader();
    Windows().Show<DisclosureSetupWindow>();
  }
  hide();
}

void DisclosureEntryWindow::ForgetAccount() {
  ForgetEntries(Session());
  Windows().Discard<TierTableWindow>();
}

void DisclosureEntryWindow::cmdAcctInfo_Click() {
  CaptureUserInfo(Session(), HeaderMode::KeepInstitution);
  ForgetAccount();
  SizePeriodArrays(Session());
  Windows().Get<DisclosureSetupWindow>().ShowAccountHeader();
  Windows().Show<DisclosureSetupWindow>();
  Windows().CloseWindowForNavigation(*this);
}

void DisclosureEntryWindow::cmdExit_Click() {
  CaptureUserInfo(Session(), HeaderMode::ClearAll);
  ForgetAccount();
  Windows().Show<MainMenu>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
