#include "windows/disclosure/TierTableWindow.h"

#include <QtWidgets>

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "disclosure/DisclosureSetup.h"
#include "disclosure/PeriodArrays.h"
#include "support/NumberText.h"
#include "ui_TierTableWindow.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementSetupWindow.h"
#include "windows/statement/StatementWindows.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 4;

}  // namespace

TierTableWindow::TierTableWindow(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::TierTableWindow>()) {
  ui_->setupUi(this);
  NameArrayElements();
  for (int tier = 1; tier <= kMostTiers; ++tier) BindRow(tier);
  for (int tiers = kFewestTiers; tiers <= kMostTiers; ++tiers) {
    ui_->cboTotalTiers->addItem(QString::number(tiers));
  }
  ui_->cboTotalTiers->setCurrentIndex(-1);
  connect(ui_->cboTotalTiers, &QComboBox::currentIndexChanged, this,
          [this] { cboTotalTiers_Click(); });
  OnClick(ui_->cmdCalculate, [this] { cmdCalculate_Click(); });
  OnClick(ui_->cmdBack, [this] { cmdBack_Click(); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  BindCommonMenus(kHelpContext);
}

TierTableWindow::~TierTableWindow() = default;

QLineEdit* TierTableWindow::Box(const char* array, int tier) const {
  return findChild<QLineEdit*>(QString::fromStdString(ElementName(array, tier)));
}

void TierTableWindow::BindRow(int tier) {
  if (auto* rate = Box("txtInt", tier)) {
    BindNumeric(rate, {.decimals = 4, .kind = "int"});
    SelectTextOnFocus(rate);
    connect(rate, &QLineEdit::textEdited, this, [this, tier] { txtInt_Emptied(tier); });
  }
  if (auto* bound = Box("txt_bne", tier)) {
    BindNumeric(bound, {.repairMinus = true, .decimals = 2, .kind = "bal"});
    SelectTextOnFocus(bound);
    RewriteOnLeaving(bound);
    OnLostFocus(bound, [this, tier](const QString&) { txt_bne_LostFocus(tier); });
  }
}

void TierTableWindow::Form_Load() {
  ShowMethod();
  ui_->cmdCalculate->setEnabled(false);
  Enable_Rates();
  setWindowTitle(Session().StatementPath
                     ? "Periodic Statements APY - Tiered Calculations"
                     : "Disclosures & Advertisements APY - Tiered Calculations");
  if (!Session().TierFormLoaded) return;
  WriteBoxes(StoredTierTable(Session()));
  Session().NewStatementAcct = false;
}

void TierTableWindow::Form_Activate() {
  Session().TierRecalc = false;
  ShowMethod();
  if (Session().NewStatementAcct) EmptyTable();
  ui_->cboTotalTiers->setFocus();
}

void TierTableWindow::ShowMethod() {
  ui_->lblMethod->setText(Session().AcctTierA ? "Method A" : "Method B");
}

void TierTableWindow::EmptyTable() {
  WriteBoxes({});
  ui_->txtTotalTiers->clear();
  ui_->cmdCalculate->setEnabled(false);
}

TierTable TierTableWindow::ReadBoxes() const {
  TierTable table;
  table.tiers = ui_->cboTotalTiers->currentText().toInt();
  for (int tier = 1; tier <= kMostTiers; ++tier) {
    table.txtInt.Set(tier, FieldText(Box("txtInt", tier)));
    if (tier > 1) table.TxtAbove.Set(tier, FieldText(Box("TxtAbove", tier)));
    if (tier < kMostTiers) table.txt_bne.Set(tier, FieldText(Box("txt_bne", tier)));
  }
  return table;
}

void TierTableWindow::WriteBoxes(const TierTable& table) {
  ui_->cboTotalTiers->setCurrentIndex(table.tiers - kFewestTiers < 0 ? -1
                                                                     : table.tiers - kFewestTiers);
  for (int tier = 1; tier <= kMostTiers; ++tier) {
    SetFieldText(Box("txtInt", tier), table.txtInt.At(tier));
    if (tier > 1) SetFieldText(Box("TxtAbove", tier), table.TxtAbove.At(tier));
    if (tier < kMostTiers) SetFieldText(Box("txt_bne", tier), table.txt_bne.At(tier));
  }
}

void TierTableWindow::Enable_Rates() {
  const int tiers = ui_->cboTotalTiers->currentText().toInt();
  for (int tier = 1; tier <= kMostTiers; ++tier) {
    const bool used = tier <= tiers;
    const bool bounded = tier < tiers;
    const std::pair<const char*, bool> parts[] = {{"lblT", used},       {"txtInt", used},
                                                  {"TxtAbove", used},   {"lblAbove", used},
                                                  {"lbl_bne", bounded}, {"txt_bne", bounded}};
    for (const auto& [array, shown] : parts) {
      const QString name = QString::fromStdString(ElementName(array, tier));
      if (auto* part = findChild<QWidget*>(name)) part->setVisible(shown);
    }
  }
}

void TierTableWindow::cboTotalTiers_Click() {
  const int tiers = ui_->cboTotalTiers->currentText().toInt();
  ui_->txtTotalTiers->setText(tiers ? QString::number(tiers) : "");
  Enable_Rates();
  ui_->cmdCalculate->setEnabled(tiers > 0);
  if (tiers != Session().TierCountSel) Session().EntryDataKept = false;
}

void TierTableWindow::txtInt_Emptied(int tier) {
  QLineEdit* rate = Box("txtInt", tier);
  if (!rate->text().isEmpty() || ui_->cboTotalTiers->currentIndex() < 0) return;
  Tell(
      {"Please input Interest Rate for Tier " + std::to_string(tier), ElementName("txtInt", tier)});
}

void TierTableWindow::txt_bne_LostFocus(int tier) {
  SetFieldText(Box("TxtAbove", tier + 1), FieldText(Box("txt_bne", tier)));
}

void TierTableWindow::cmdCalculate_Click() {
  TierTable table = ReadBoxes();
  FillLowerBounds(table);
  if (const auto refused = CheckTierTable(table)) {
    auto* box = findChild<QLineEdit*>(QString::fromStdString(refused->refusal.field));
    if (refused->clearsBox) box->clear();
    return Tell(refused->refusal);
  }
  ClearUnusedTiers(table);
  WriteBoxes(table);
  Session().TotalTiers = static_cast<std::int16_t>(table.tiers);
  StoreTierTable(Session(), table);
  if (Session().StatementPath) {
    OpenStatement(table.tiers);
  } else {
    OpenEntry();
  }
}

void TierTableWindow::OpenStatement(int tiers) {
  Session().TierNumber = static_cast<std::int16_t>(tiers);
  EndDetailOfChangedTable(Session());
  Windows().Get<StatementSetupWindow>().TakeCompoundingDays();
  Windows().Show<StatementEntryWindow>();
  hide();
}

void TierTableWindow::OpenEntry() {
  DropEntriesOfChangedTable(Session());
  Session().PeriodCount = 0;
  if (!Session().EntryDataKept) {
    Windows().Discard<DisclosureEntryWindow>();
    SizePeriodArrays(Session());
  }
  Windows().Get<DisclosureEntryWindow>().Load_Back_Data(1);
  Windows().Show<DisclosureEntryWindow>();
  Windows().Discard<DisclosureSetupWindow>();
  hide();
}

void TierTableWindow::cmdBack_Click() {
  Session().NewStatementAcct = false;
  StoreTierTable(Session(), ReadBoxes());
  if (Session().StatementPath) return BackToStatementSetup();
  DropEntriesOfChangedTable(Session());
  Windows().Discard<DisclosureEntryWindow>();
  Windows().Get<DisclosureSetupWindow>().ShowAccountHeader();
  Windows().Show<DisclosureSetupWindow>();
  Windows().CloseWindowForNavigation(*this);
}

void TierTableWindow::BackToStatementSetup() {
  EndDetailOfChangedTable(Session());
  Windows().Get<StatementSetupWindow>().ShowAccountHeader();
  Windows().Show<StatementSetupWindow>();
  hide();
}

void TierTableWindow::cmdExit_Click() {
  ForgetEntries(Session());
  if (Session().StatementPath) return LeaveStatements(Windows());
  CaptureUserInfo(Session(), HeaderMode::ClearAll);
  Windows().Discard<DisclosureEntryWindow>();
  Windows().Discard<DisclosureSetupWindow>();
  Windows().Show<MainMenu>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
