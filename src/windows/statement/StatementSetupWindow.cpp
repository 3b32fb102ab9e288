#include "windows/statement/StatementSetupWindow.h"

#include <QtWidgets>

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "statement/StatementSetupStore.h"
#include "ui_StatementSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementWindows.h"

namespace corvane {

namespace {

using Setup = StatementSetup;

constexpr int kHelpContext = 8;

constexpr FieldName<Setup> kFields[] = {
    {"txtDCompounding", &Setup::txtDCompounding},
    {"txtDCPeriod", &Setup::txtDCPeriod},
};

constexpr FlagName<Setup> kOptions[] = {
    {"optRegNoDisc", &Setup::optRegNoDisc},   {"optStepRate", &Setup::optStepRate},
    {"optTierA", &Setup::optTierA},           {"optTierB", &Setup::optTierB},
    {"optICNone", &Setup::optICNone},         {"optICDays", &Setup::optICDays},
    {"optDY365", &Setup::optDY365},           {"optDY366", &Setup::optDY366},
    {"opt229yes", &Setup::opt229yes},         {"opt229no", &Setup::opt229no},
    {"optFormulaYes", &Setup::optFormulaYes}, {"optFormulaNo", &Setup::optFormulaNo},
};

constexpr FlagName<Setup> kGroups[] = {
    {"fraLYear", &Setup::fraLYear},
    {"fraAPYFormula", &Setup::fraAPYFormula},
};

}  // namespace

StatementSetupWindow::StatementSetupWindow(WindowRegistry& windows)
    : Form(windows, Role::Main),
      ui_(std::make_unique<Ui::StatementSetupWindow>()),
      fields_(std::make_unique<FieldBinding<Setup>>(*this, kFields, kOptions, kGroups)) {
  ui_->setupUi(this);
  BindOptions();
  BindFields();
  OnClick(ui_->cmdNext, [this] { cmdNext_Click(); });
  OnClick(ui_->cmdNewAcct, [this] { cmdNewAcct_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuNewAcct, [this] { ui_->cmdNewAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

StatementSetupWindow::~StatementSetupWindow() = default;

void StatementSetupWindow::BindOptions() {
  const auto on = [this](QRadioButton* option, void (*choose)(Setup&)) {
    OnOption(option, [this, choose] { Change(choose); });
  };
  on(ui_->optICNone, ChooseCompoundingNone);
  on(ui_->optICDays, ChooseCompoundingDays);
  on(ui_->optDY365, [](Setup& setup) { ChooseDaysInYear(setup, false); });
  on(ui_->optDY366, [](Setup& setup) { ChooseDaysInYear(setup, true); });
  on(ui_->optFormulaYes, [](Setup& setup) { ChooseAdditionalFormula(setup, true); });
  on(ui_->optFormulaNo, [](Setup& setup) { ChooseAdditionalFormula(setup, false); });
}

void StatementSetupWindow::BindFields() {
  for (QLineEdit* field :
       {ui_->txtName, ui_->txtDepositInst, ui_->txtDepositorName, ui_->txtAcctNum}) {
    SelectTextOnFocus(field);
    OnLostFocus(field, [this](const QString&) { AccountHeader_LostFocus(); });
  }
  for (QLineEdit* field : {ui_->txtDCompounding, ui_->txtDCPeriod}) {
    SelectTextOnFocus(field);
    BindNumeric(field, {});
  }
}

void StatementSetupWindow::Form_Load() {
  ResetOptions();
}

void StatementSetupWindow::Form_Activate() {
  FocusField(ui_->txtName);
}

StatementSetup StatementSetupWindow::ReadFields() const {
  return fields_->Read();
}

void StatementSetupWindow::WriteFields(const StatementSetup& setup) {
  fields_->Write(setup);
  for (QWidget* control :
       {static_cast<QWidget*>(ui_->lblAPYFormula), static_cast<QWidget*>(ui_->lblNoneOnly),
        static_cast<QWidget*>(ui_->fraAPYFormula), static_cast<QWidget*>(ui_->lblDCPeriod),
        static_cast<QWidget*>(ui_->txtDCPeriod)}) {
    control->setVisible(setup.fraAPYFormula);
  }
}

void StatementSetupWindow::Change(const std::function<void(StatementSetup&)>& change) {
  if (fields_->IsWriting()) return;
  StatementSetup setup = ReadFields();
  change(setup);
  WriteFields(setup);
}

void StatementSetupWindow::ResetOptions() {
  WriteFields(LoadSetup(Session()));
}

void StatementSetupWindow::SelectStartOptions() {
  ui_->optICDays->setChecked(true);
}

void StatementSetupWindow::TakeCompoundingDays() {
  Change([this](Setup& setup) { StoreCompoundingDays(setup, Session()); });
}

void StatementSetupWindow::ShowAccountHeader() {
  const AccountHeader header = RestoreUserInfo(Session());
  SetFieldText(ui_->txtName, header.institution);
  SetFieldText(ui_->txtDepositInst, header.description);
  SetFieldText(ui_->txtDepositorName, header.holder);
  SetFieldText(ui_->txtAcctNum, header.number);
}

void StatementSetupWindow::AccountHeader_LostFocus() {
  CaptureUserInfo(Session(), HeaderMode::StatementSetup,
                  {FieldText(ui_->txtName), FieldText(ui_->txtDepositInst),
                   FieldText(ui_->txtDepositorName), FieldText(ui_->txtAcctNum)});
}

void StatementSetupWindow::cmdNext_Click() {
  StatementSetup setup = ReadFields();
  const CheckOutcome outcome = ValidateAndStoreSetup(setup, Session());
  if (outcome.notice) Tell(*outcome.notice);
  WriteFields(setup);
  if (outcome.refusal) return Tell(*outcome.refusal);
  if (setup.optTierA || setup.optTierB) {
    Windows().Show<TierTableWindow>();
    hide();
    return;
  }
  TakeCompoundingDays();
  Windows().Discard<TierTableWindow>();
  Windows().Show<StatementEntryWindow>();
  hide();
}

void StatementSetupWindow::cmdNewAcct_Click() {
  for (QLineEdit* field : {ui_->txtDepositInst, ui_->txtDepositorName, ui_->txtAcctNum}) {
    field->clear();
  }
  AccountHeader_LostFocus();
  NewStatementAccount(Windows());
  FocusField(ui_->txtName);
}

void StatementSetupWindow::cmdExit_Click() {
  LeaveStatements(Windows());
}

}  // namespace corvane
