#include "windows/statement/StatementSetupWindow.h"

#include <QtWidgets>

#include "ui_StatementSetupWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 8;

}  // namespace

StatementSetupWindow::StatementSetupWindow(WindowRegistry& registry)
    : Form(registry, Role::Main),
      ui_(std::make_unique<Ui::StatementSetupWindow>()),
      choices_(session().statement.setup) {
  ui_->setupUi(this);
  binding_ =
      std::make_unique<FieldBinding<StatementSetup>>(*this, choices_, [this] { ShowGroups(); });
  header_ = std::make_unique<HeaderFields>(*this, session().header);
  BindFields();
  OnClick(ui_->cmdNext, [this] { cmdNext_Click(); });
  OnClick(ui_->cmdNewAcct, [this] { cmdNewAcct_Click(); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuNewAcct, [this] { ui_->cmdNewAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdNext});
  BindCommonMenus(kHelpContext);
}

StatementSetupWindow::~StatementSetupWindow() = default;

void StatementSetupWindow::BindFields() {
  for (QLineEdit* field :
       {ui_->txtName, ui_->txtDepositInst, ui_->txtDepositorName, ui_->txtAcctNum}) {
    SelectTextOnFocus(field);
  }
  for (QLineEdit* field : {ui_->txtDCompounding, ui_->txtDCPeriod}) {
    SelectTextOnFocus(field);
    BindNumeric(field, {});
  }
}

void StatementSetupWindow::Form_Load() {
  header_->Show();
  binding_->Show();
}

void StatementSetupWindow::Form_Activate() {
  FocusField(ui_->txtName);
}

void StatementSetupWindow::ShowGroups() {
  ui_->fraLYear->setEnabled(choices_.leapDayOpen);
  for (QWidget* control :
       {static_cast<QWidget*>(ui_->lblAPYFormula), static_cast<QWidget*>(ui_->lblNoneOnly),
        static_cast<QWidget*>(ui_->fraAPYFormula), static_cast<QWidget*>(ui_->lblDCPeriod),
        static_cast<QWidget*>(ui_->txtDCPeriod)}) {
    control->setVisible(choices_.OffersAdditionalFormula());
  }
}

void StatementSetupWindow::cmdNext_Click() {
  const CheckOutcome outcome = ContinueSetup(session().statement, choices_);
  if (outcome.notice) Tell(*outcome.notice);
  binding_->Show();
  if (outcome.refusal) return Tell(*outcome.refusal);
  routes().ContinueStatementSetup();
}

void StatementSetupWindow::cmdNewAcct_Click() {
  session().header = session().header.OfNextAccount();
  session().statement = NewStatementCheck();
  header_->Show();
  FocusField(ui_->txtName);
}

}  // namespace corvane
