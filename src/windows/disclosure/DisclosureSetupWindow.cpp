#include "windows/disclosure/DisclosureSetupWindow.h"

#include <QtWidgets>

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "account/SessionStart.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/PeriodArrays.h"
#include "ui_DisclosureSetupWindow.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/MainMenu.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 2;

void SetVisible(std::initializer_list<QWidget*> group, bool visible) {
  for (QWidget* widget : group) widget->setVisible(visible);
}

}  // namespace

DisclosureSetupWindow::DisclosureSetupWindow(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::DisclosureSetupWindow>()) {
  ui_->setupUi(this);
  OnOption(ui_->optICNone, [this] { optICNone_Click(); });
  OnOption(ui_->optICDays, [this] { optICDays_Click(); });
  OnOption(ui_->optICMonths, [this] { optICMonths_Click(); });
  OnOption(ui_->optICYears, [this] { optICYears_Click(); });
  OnOption(ui_->optDY365, [this] { optDY365_Click(); });
  OnOption(ui_->optDY366, [this] { optDY366_Click(); });
  OnOption(ui_->optRegNoDisc, [this] { AccountType_Click(1); });
  OnOption(ui_->optStepRate, [this] { AccountType_Click(2); });
  OnOption(ui_->optTierA, [this] { AccountType_Click(3); });
  OnOption(ui_->optTierB, [this] { AccountType_Click(4); });
  for (QLineEdit* field : {ui_->txtName, ui_->txtDepositInst, ui_->txtDepositorName}) {
    OnLostFocus(field, [this](const QString&) { AccountHeader_LostFocus(); });
  }
  BindNumeric(ui_->txtDailyCompounding, {});
  SelectTextOnFocus(ui_->txtDailyCompounding, 3);
  OnClick(ui_->cmdNext, [this] { cmdNext_Click(); });
  OnClick(ui_->cmdNewAcct, [this] { cmdNewAcct_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdNewAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

DisclosureSetupWindow::~DisclosureSetupWindow() = default;

void DisclosureSetupWindow::Form_Load() {
  ResetLayout();
  SetVisible({ui_->lblAcctType, ui_->Label8, ui_->fraAcctType}, false);
  RestoreSelections();
  Session().TierNumber = 0;
  Session().PeriodNumber = 0;
}

void DisclosureSetupWindow::Form_Activate() {
  FocusField(ui_->txtName);
}

void DisclosureSetupWindow::RestoreSelections() {
  // A copy, because selecting an option may change what the record holds.
  const SessionRecord stored = Session();
  const std::pair<Flag, QRadioButton*> selections[] = {
      {stored.CompoundNone, ui_->optICNone},     {stored.CompoundDays, ui_->optICDays},
      {stored.CompoundMonths, ui_->optICMonths}, {stored.CompoundYears, ui_->optICYears},
      {stored.AcctRegular, ui_->optRegNoDisc},   {stored.AcctStepped, ui_->optStepRate},
      {stored.AcctTierA, ui_->optTierA},         {stored.AcctTierB, ui_->optTierB},
      {stored.ReqWdrwlNotReq, ui_->optRINotReq}, {stored.ReqWdrwlDays, ui_->OptRIDays},
      {stored.ReqWdrwlMonths, ui_->optRIMonths},
  };
  for (const auto& [selected, option] : selections) {
    if (selected) option->setChecked(true);
  }
  if (!ui_->txtDailyCompounding->text().isEmpty()) {
    ui_->txtDailyCompounding->setText(QString::number(stored.CompoundingDays));
  }
  if (stored.DaysInYear365) ui_->optDY365->setChecked(true);
  if (stored.DaysInYear366) ui_->optDY366->setChecked(true);
  (stored.CountLeapDay ? ui_->optLYYes : ui_->optLYNo)->setChecked(true);
}

void DisclosureSetupWindow::ShowAccountHeader() {
  const AccountHeader header = RestoreUserInfo(Session());
  SetFieldText(ui_->txtName, header.institution);
  SetFieldText(ui_->txtDepositInst, header.description);
  SetFieldText(ui_->txtDepositorName, header.holder);
}

void DisclosureSetupWindow::SelectStartOptions() {
  ui_->optICDays->setChecked(true);
  ui_->optRegNoDisc->setChecked(true);
}

void DisclosureSetupWindow::Clear_Tier_Data() {
  ClearTierTables(Session());
}

void DisclosureSetupWindow::AccountHeader_LostFocus() {
  CaptureUserInfo(Session(), HeaderMode::DisclosureSetup,
                  {FieldText(ui_->txtName), FieldText(ui_->txtDepositInst),
                   FieldText(ui_->txtDepositorName), ""});
}

void DisclosureSetupWindow::ResetLayout() {
  SetVisible({ui_->lblDailyCompounding, ui_->txtDailyCompounding, ui_->lblCompoundingNotes,
              ui_->lblDaysInYear, ui_->Label6, ui_->fraDaysInYear, ui_->lblLeapYear, ui_->Label7,
              ui_->fraLeapYear, ui_->lblRIWithdrawal, ui_->Label9, ui_->fraRIWithdrawal},
             false);
  SetVisible({ui_->lblAcctType, ui_->Label8, ui_->fraAcctType}, true);
}

void DisclosureSetupWindow::FullLayout() {
  SetVisible({ui_->lblDailyCompounding, ui_->txtDailyCompounding, ui_->lblCompoundingNotes,
              ui_->lblDaysInYear, ui_->Label6, ui_->fraDaysInYear, ui_->lblLeapYear, ui_->Label7,
              ui_->fraLeapYear, ui_->lblRIWithdrawal, ui_->Label9, ui_->fraRIWithdrawal,
              ui_->lblAcctType, ui_->Label8, ui_->fraAcctType},
             true);
}

void DisclosureSetupWindow::NoneYearsLayout() {
  ClearOption(ui_->optRIMonths);
  ClearOption(ui_->OptRIDays);
  Session().ReqWdrwlDays = false;
  Session().ReqWdrwlMonths = false;
  Session().ReqWdrwlNotReq = false;
  const bool years = ui_->optICYears->isChecked();
  SetVisible({ui_->lblDailyCompounding, ui_->txtDailyCompounding, ui_->lblCompoundingNotes}, years);
  SetVisible({ui_->lblDaysInYear, ui_->Label6, ui_->fraDaysInYear, ui_->lblLeapYear, ui_->Label7,
              ui_->fraLeapYear},
             !years);
  if (!years && Session().DaysInYear365) ui_->optLYNo->setChecked(true);
}

void DisclosureSetupWindow::ShowInterval(const char* label, const char* note) {
  ui_->txtDailyCompounding->setText("1");
  ui_->lblDailyCompounding->setText(label);
  ui_->lblCompoundingNotes->setText(note);
}

void DisclosureSetupWindow::SelectYearOf365() {
  ui_->optDY365->setChecked(true);
}

void DisclosureSetupWindow::optICNone_Click() {
  ResetLayout();
  NoneYearsLayout();
  ui_->optRINotReq->setChecked(true);
  SelectYearOf365();
}

void DisclosureSetupWindow::optICDays_Click() {
  ResetLayout();
  FullLayout();
  ShowInterval("Number Of Days Between Compounding       :", "( e.g., 1 = Daily Compounding )");
  ui_->optRIMonths->setEnabled(true);
  ui_->OptRIDays->setEnabled(true);
  const bool chosen =
      ui_->optRINotReq->isChecked() || ui_->OptRIDays->isChecked() || ui_->optRIMonths->isChecked();
  if (!chosen) ui_->optRINotReq->setChecked(true);
  SelectYearOf365();
  ui_->optLYNo->setChecked(true);
  Session().EntryNavState = 0;
}

void DisclosureSetupWindow::optICMonths_Click() {
  ResetLayout();
  FullLayout();
  ShowInterval("Number Of Months Between Compounding   :",
               "( e.g., 1 = Monthly   3 = Quarterly   6 = Semi-Annually )");
  ui_->OptRIDays->setEnabled(false);
  ui_->optRIMonths->setEnabled(true);
  ui_->optRINotReq->setChecked(true);
  SelectYearOf365();
}

void DisclosureSetupWindow::optICYears_Click() {
  ResetLayout();
  NoneYearsLayout();
  ShowInterval("Number Of Years Between Compounding      :", "( e.g.,  1 = 365 Days )");
  ui_->optRINotReq->setChecked(true);
  SelectYearOf365();
}

void DisclosureSetupWindow::optDY365_Click() {
  ui_->optLYNo->setChecked(true);
}

void DisclosureSetupWindow::optDY366_Click() {
  SetVisible({ui_->lblLeapYear, ui_->Label7, ui_->fraLeapYear}, true);
  ui_->optLYYes->setChecked(true);
}

void DisclosureSetupWindow::AccountType_Click(std::int16_t code) {
  Session().AcctTypeCode = code;
  const bool methodA = code == 3;
  const bool methodB = code == 4;
  if (methodA || methodB) Session().PeriodNumber = 0;
  if (methodB) Session().EntryNavState = 0;
}

AccountSetup DisclosureSetupWindow::ReadChoices() const {
  AccountSetup choices;
  choices.optICNone = ui_->optICNone->isChecked();
  choices.optICDays = ui_->optICDays->isChecked();
  choices.optICMonths = ui_->optICMonths->isChecked();
  choices.optICYears = ui_->optICYears->isChecked();
  choices.optRegNoDisc = ui_->optRegNoDisc->isChecked();
  choices.optStepRate = ui_->optStepRate->isChecked();
  choices.optTierA = ui_->optTierA->isChecked();
  choices.optTierB = ui_->optTierB->isChecked();
  choices.optRINotReq = ui_->optRINotReq->isChecked();
  choices.OptRIDays = ui_->OptRIDays->isChecked();
  choices.optRIMonths = ui_->optRIMonths->isChecked();
  choices.optDY365 = ui_->optDY365->isChecked();
  choices.optDY366 = ui_->optDY366->isChecked();
  choices.optLYYes = ui_->optLYYes->isChecked();
  choices.optLYNo = ui_->optLYNo->isChecked();
  choices.txtDailyCompounding = FieldText(ui_->txtDailyCompounding);
  return choices;
}

void DisclosureSetupWindow::cmdNext_Click() {
  AccountSetup choices = ReadChoices();
  if (const auto refusal = CheckSetup(choices)) return Tell(*refusal);
  StoreSetup(Session(), choices);
  SetFieldText(ui_->txtDailyCompounding, choices.txtDailyCompounding);
  Windows().Discard<DisclosureResultsWindow>();
  if (!KeepsEntry(Session())) {
    Windows().Discard<DisclosureEntryWindow>();
    SizePeriodArrays(Session());
    Session().EntryDataKept = false;
    Session().TierPerNum = 0;
    Session().PrevAcctTypeCode = Session().AcctTypeCode;
  }
  if (const auto refusal = CheckMonthsByMonths(Session())) return Tell(*refusal);
  if (const auto notice = StoreDaysInYear(Session(), choices)) Tell(*notice);
  if (choices.optLYYes) ui_->optLYYes->setChecked(true);
  ShowNextWindow();
}

void DisclosureSetupWindow::ShowNextWindow() {
  Session().PeriodNumber = 0;
  if (IsTiered(Session())) {
    if (Session().AcctTierA) Windows().Discard<DisclosureEntryWindow>();
    Windows().Show<TierTableWindow>();
    hide();
    return;
  }
  Windows().Get<DisclosureEntryWindow>().cmdSetProperties_Click();
  Restore_Period_Data();
  Windows().Show<DisclosureEntryWindow>();
  Windows().CloseWindowForNavigation(*this);
}

void DisclosureSetupWindow::Restore_Period_Data() {
  if (Session().EntryDataKept) Windows().Get<DisclosureEntryWindow>().Load_Back_Data(1);
}

void DisclosureSetupWindow::cmdNewAcct_Click() {
  ui_->txtDepositInst->clear();
  ui_->txtDepositorName->clear();
  AccountHeader_LostFocus();
  Windows().Discard<DisclosureEntryWindow>();
  Windows().Discard<TierTableWindow>();
  ResetForNewAccount(Session());
  ui_->optICNone->setChecked(true);
  ui_->optDY365->setChecked(true);
  ui_->txtDailyCompounding->clear();
  FocusField(ui_->txtName);
}

void DisclosureSetupWindow::cmdExit_Click() {
  Windows().Show<MainMenu>();
  CaptureUserInfo(Session(), HeaderMode::ClearAll);
  ForgetEntries(Session());
  Windows().Discard<DisclosureEntryWindow>();
  Windows().Discard<TierTableWindow>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
