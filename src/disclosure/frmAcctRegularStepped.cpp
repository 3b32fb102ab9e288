#include "disclosure/frmAcctRegularStepped.h"

#include <QtWidgets>

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntryChecks.h"
#include "disclosure/EntryLayout.h"
#include "disclosure/EntryTerm.h"
#include "disclosure/PeriodStore.h"
#include "disclosure/frmAcctAdvertAPY.h"
#include "disclosure/frmDisplayResultsweb.h"
#include "formulas/PeriodArrays.h"
#include "platform/Clock.h"
#include "platform/MessageBox.h"
#include "platform/Pictures.h"
#include "shell/AccountHeader.h"
#include "shell/SessionRecord.h"
#include "shell/WindowRegistry.h"
#include "shell/frmMain.h"
#include "support/NumberText.h"
#include "support/frmCalendar.h"
#include "ui_frmAcctRegularStepped.h"

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

frmAcctRegularStepped::frmAcctRegularStepped(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::frmAcctRegularStepped>()) {
  ui_->setupUi(this);
  NameArrayElements();
  BindFields();
  BindButtons();
}

frmAcctRegularStepped::~frmAcctRegularStepped() = default;

void frmAcctRegularStepped::BindFields() {
  for (const EntryFieldName& known : kEntryFields) SelectTextOnFocus(Field(known.name));
  BindNumeric(ui_->txtBal, {.repairMinus = true, .decimals = 2, .kind = "bal"});
  BindNumeric(ui_->txtIntRateA, {.repairMinus = true, .decimals = 4, .kind = "int"});
  BindNumeric(ui_->txtDiscAPY, {.repairMinus = true, .decimals = 2, .kind = "apy"});
  for (auto* field :
       {ui_->txtBeginMonth, ui_->txtBeginYear, ui_->txtBtwnReqIntWdrwl, ui_->txtWdrwlPeriods}) {
    BindNumeric(field, {});
  }
  BindNumeric(ui_->txtTerm, {.enterMovesOn = true});
  RewriteOnLeaving(ui_->txtBal);
  OnLostFocus(ui_->txtBal, [this](const QString&) { txtBal_LostFocus(); });
  OnChange(ui_->txtTerm, [this] { txtTerm_Change(); });
  connect(ui_->txtTerm, &QLineEdit::textEdited, this, [this] { Session().TermEntryFlag = true; });
  OnLostFocus(ui_->txtTerm, [this](const QString& next) { txtTerm_LostFocus(next); });
  OnLostFocus(ui_->txtTierPerNum, [this](const QString& next) { txtTierPerNum_LostFocus(next); });
}

void frmAcctRegularStepped::BindButtons() {
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
  OnClick(ui_->cmdCalculateResult, [this] { cmdCalculateResult_Click(); });
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdAcctInfo, [this] { cmdAcctInfo_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcctInfo->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

void frmAcctRegularStepped::Form_Load() {
  cmdSetProperties_Click();
}

void frmAcctRegularStepped::Form_Activate() {
  for (QLineEdit* field :
       {ui_->txtTierPerNum, ui_->txtBeginMonth, ui_->txtDiscAPY, ui_->txtBal, ui_->txtIntRateA}) {
    if (field->isEnabled()) return FocusField(field);
  }
}

QLineEdit* frmAcctRegularStepped::Field(const char* name) const {
  return findChild<QLineEdit*>(name);
}

DisclosureEntry frmAcctRegularStepped::ReadFields() const {
  DisclosureEntry entry;
  for (const EntryFieldName& known : kEntryFields) {
    const QLineEdit* field = Field(known.name);
    entry.*known.field = {FieldText(field), field->isEnabled()};
  }
  return entry;
}

void frmAcctRegularStepped::WriteFields(const DisclosureEntry& entry) {
  for (const EntryFieldName& known : kEntryFields) {
    QLineEdit* field = Field(known.name);
    const std::string& text = (entry.*known.field).text;
    if (FieldText(field) != text) SetFieldText(field, text);
  }
  EnableTermDates();
}

void frmAcctRegularStepped::cmdSetProperties_Click() {
  ShowCaptions();
  Session().ComputedInterest = 0;
  Session().TierInterestTotal = 0;
  EmptyTermDates();
  ShowGroups();
  const std::string stored = Session().PerDailyRateFactor.At(1);
  const std::string kept = stored.empty() ? FieldText(ui_->txtDailyRateFactor) : stored;
  SetFieldText(ui_->txtDailyRateFactor, FactorFor(Session(), kept));
}

void frmAcctRegularStepped::ShowCaptions() {
  const EntryCaptions captions = CaptionsFor(Session());
  const std::pair<QLabel*, const std::string&> labels[] = {
      {ui_->lblAcctType, captions.lblAcctType},
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

void frmAcctRegularStepped::ShowGroups() {
  const EntryGroups groups = GroupsFor(Session());
  const std::pair<QWidget*, bool> frames[] = {
      {ui_->frmPeriodNumber, groups.periodNumber},
      {ui_->frmDateRange, groups.dateRange},
      {ui_->frmTermDates, groups.termDates},
      {ui_->frmIntWithDrawal, groups.withdrawal},
  };
  for (const auto& [frame, applies] : frames) {
    frame->setVisible(applies);
    frame->setEnabled(applies);
    if (applies) continue;
    for (auto* field : frame->findChildren<QLineEdit*>()) field->clear();
  }
  ui_->txtDailyRateFactor->setEnabled(!groups.factorFixed);
  ui_->lblMethod->setVisible(false);
  ui_->lblPeriodNumber->setVisible(groups.periodNumber);
  ui_->lblHighLowEnd->setVisible(groups.periodNumber && Session().AcctTierB);
  ui_->cmdNext->setVisible(false);
  EnableTermDates();
}

void frmAcctRegularStepped::Load_Back_Data(int period) {
  DisclosureEntry stored = StoredEntry(Session(), period);
  stored.txtTierPerNum.text = FieldText(ui_->txtTierPerNum);
  stored.txtDailyRateFactor.text = FactorFor(Session(), stored.txtDailyRateFactor.text);
  WriteFields(stored);
  // What the account no longer has a field for must not come back with the rest.
  ShowGroups();
}

void frmAcctRegularStepped::EnableTermDates() {
  const bool enabled = HasCalendar(Session()) && AsksForCalendar(FieldText(ui_->txtTerm));
  for (QWidget* control :
       {static_cast<QWidget*>(ui_->tStartDate), static_cast<QWidget*>(ui_->tEndDate),
        static_cast<QWidget*>(imgCalendar_[0]), static_cast<QWidget*>(imgCalendar_[1])}) {
    control->setEnabled(enabled);
  }
}

void frmAcctRegularStepped::EmptyTermDates() {
  ui_->tStartDate->clear();
  ui_->tEndDate->clear();
}

void frmAcctRegularStepped::txtBal_LostFocus() {
  Session().Balance = NumericValue(FieldText(ui_->txtBal));
}

void frmAcctRegularStepped::txtTerm_Change() {
  EnableTermDates();
}

void frmAcctRegularStepped::txtTerm_LostFocus(const QString& next) {
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

void frmAcctRegularStepped::txtTierPerNum_LostFocus(const QString& next) {
  const auto refusal = CheckPeriodNumber(Session(), FieldText(ui_->txtTierPerNum));
  if (!refusal || LeavesWindow(next)) return;
  ui_->txtTierPerNum->clear();
  Tell({refusal->text, ""});
  HoldFocus(ui_->txtTierPerNum);
}

void frmAcctRegularStepped::TermDates_LostFocus(const QString& next) {
  if (!BelongsToTermDates(next)) WriteCountedTerm();
}

void frmAcctRegularStepped::WriteCountedTerm() {
  const DisclosureEntry entry = ReadFields();
  if (!TermOf(Session(), entry).fromCalendar) return;
  if (const auto term = CountedTermText(Session(), entry)) SetFieldText(ui_->txtTerm, *term);
}

void frmAcctRegularStepped::ImgCalendar_Click(int index) {
  QLineEdit* field = index == kStartDate ? ui_->tStartDate : ui_->tEndDate;
  Date date = ParseDate(FieldText(field)).value_or(Today());
  if (Windows().Get<frmCalendar>().GetDate(date)) SetFieldText(field, FormatDate(date));
  if (!ParseDate(FieldText(ui_->tStartDate))) {
    Tell({"Starting Date is invalid, Please correct", "tStartDate"});
    return;
  }
  WriteCountedTerm();
}

void frmAcctRegularStepped::cmdCalculateResult_Click() {
  DisclosureEntry entry = ReadFields();
  if (IsRateMissing(entry)) return InternalError();
  const auto refusal = AttemptCalculation(Session(), entry);
  WriteFields(entry);
  if (refusal) return Tell(*refusal);
  Windows().Discard<frmDisplayResultsweb>();
  Windows().Show<frmDisplayResultsweb>();
  hide();
}

void frmAcctRegularStepped::InternalError() {
  Tell({"An internal error has occurred.  When you click OK, the Corvane program will close.", "",
        "Internal Error"});
  Windows().EndProgram();
}

void frmAcctRegularStepped::cmdBack_Click() {
  StoreEntry(Session(), 1, ReadFields());
  Session().EntryDataKept = true;
  auto& setup = Windows().Get<frmAcctAdvertAPY>();
  setup.ShowAccountHeader();
  Windows().Show<frmAcctAdvertAPY>();
  hide();
}

void frmAcctRegularStepped::cmdAcctInfo_Click() {
  CaptureUserInfo(Session(), HeaderMode::KeepInstitution);
  SizePeriodArrays(Session());
  Session().EntryDataKept = false;
  auto& setup = Windows().Get<frmAcctAdvertAPY>();
  setup.ShowAccountHeader();
  Windows().Show<frmAcctAdvertAPY>();
  Windows().CloseWindowForNavigation(*this);
}

void frmAcctRegularStepped::cmdExit_Click() {
  CaptureUserInfo(Session(), HeaderMode::ClearAll);
  Session().EntryDataKept = false;
  Windows().Show<frmMain>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
