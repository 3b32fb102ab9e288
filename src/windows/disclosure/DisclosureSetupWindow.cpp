#include "windows/disclosure/DisclosureSetupWindow.h"

#include <QtWidgets>

#include "ui_DisclosureSetupWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 2;

void SetVisible(std::initializer_list<QWidget*> group, bool visible) {
  for (QWidget* widget : group) widget->setVisible(visible);
}

}  // namespace

DisclosureSetupWindow::DisclosureSetupWindow(WindowRegistry& registry)
    : Form(registry, Role::Main),
      ui_(std::make_unique<Ui::DisclosureSetupWindow>()),
      choices_(session().disclosure.setup) {
  ui_->setupUi(this);
  binding_ =
      std::make_unique<FieldBinding<DisclosureSetup>>(*this, choices_, [this] { ShowGroups(); });
  BindNumeric(ui_->txtDailyCompounding, {});
  SelectTextOnFocus(ui_->txtDailyCompounding, 3);
  header_ = std::make_unique<HeaderFields>(*this, session().header);
  NameGroups();
  OnClick(ui_->cmdNext, [this] { cmdNext_Click(); });
  OnClick(ui_->cmdNewAcct, [this] { cmdNewAcct_Click(); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdNewAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdNext});
  BindCommonMenus(kHelpContext);
}

DisclosureSetupWindow::~DisclosureSetupWindow() = default;

void DisclosureSetupWindow::NameGroups() {
  ui_->lblInterestCompounding->setBuddy(ui_->fraInterestCompunding);
  ui_->lblDaysInYear->setBuddy(ui_->fraDaysInYear);
  ui_->lblLeapYear->setBuddy(ui_->fraLeapYear);
  ui_->lblAcctType->setBuddy(ui_->fraAcctType);
  ui_->lblRIWithdrawal->setBuddy(ui_->fraRIWithdrawal);
}

void DisclosureSetupWindow::Form_Load() {
  header_->Show();
  binding_->Show();
}

void DisclosureSetupWindow::Form_Activate() {
  FocusField(ui_->txtName);
}

void DisclosureSetupWindow::ShowGroups() {
  const SetupGroups groups = GroupsOf(choices_);
  const IntervalCaptions captions = CaptionsOf(choices_);
  ui_->lblDailyCompounding->setText(captions.label);
  ui_->lblCompoundingNotes->setText(captions.note);
  SetVisible({ui_->lblDailyCompounding, ui_->txtDailyCompounding, ui_->lblCompoundingNotes},
             groups.interval);
  SetVisible({ui_->lblDaysInYear, ui_->Label6, ui_->fraDaysInYear, ui_->lblLeapYear, ui_->Label7,
              ui_->fraLeapYear},
             groups.year);
  SetVisible({ui_->lblRIWithdrawal, ui_->Label9, ui_->fraRIWithdrawal}, groups.withdrawal);
  ui_->OptRIDays->setEnabled(groups.withdrawalByDays);
}

void DisclosureSetupWindow::cmdNext_Click() {
  const CheckOutcome outcome = ContinueSetup(session().disclosure, choices_);
  if (outcome.notice) Tell(*outcome.notice);
  binding_->Show();
  if (outcome.refusal) return Tell(*outcome.refusal);
  routes().ContinueDisclosureSetup();
}

void DisclosureSetupWindow::cmdNewAcct_Click() {
  session().header = session().header.OfNextAccount();
  session().disclosure = {};
  choices_ = EmptiedSetup(choices_);
  Form_Load();
  FocusField(ui_->txtName);
}

}  // namespace corvane
