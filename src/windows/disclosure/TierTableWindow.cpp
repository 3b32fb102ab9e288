#include "windows/disclosure/TierTableWindow.h"

#include <QtWidgets>

#include "account/SlipNotice.h"
#include "ui_TierTableWindow.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 4;

}  // namespace

TierTableWindow::TierTableWindow(WindowRegistry& registry)
    : Form(registry, Role::Main), ui_(std::make_unique<Ui::TierTableWindow>()) {
  ui_->setupUi(this);
  NameArrayElements();
  FitToDigits(*ui_->txtTotalTiers, 2);
  for (int tier = 1; tier <= kMostTiers; ++tier) BindRow(tier);
  for (int tiers = kFewestTiers; tiers <= kMostTiers; ++tiers) {
    ui_->cboTotalTiers->addItem(QString::number(tiers));
  }
  ui_->cboTotalTiers->setCurrentIndex(-1);
  connect(ui_->cboTotalTiers, &QComboBox::currentIndexChanged, this,
          [this] { cboTotalTiers_Click(); });
  OnClick(ui_->cmdCalculate, [this] { cmdCalculate_Click(); });
  OnClick(ui_->cmdBack, [this] { routes().BackFromTierTable(ReadBoxes()); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  EnterPresses({ui_->cmdCalculate});
  BindCommonMenus(kHelpContext);
}

TierTableWindow::~TierTableWindow() = default;

QLineEdit* TierTableWindow::Box(const char* array, int tier) const {
  return findChild<QLineEdit*>(QString::fromStdString(ElementName(array, tier)));
}

void TierTableWindow::BindRow(int tier) {
  auto* rate = Box("txtInt", tier);
  BindNumeric(rate, {.decimals = kTierRateDecimals.decimals, .kind = kTierRateDecimals.kind});
  SelectTextOnFocus(rate);
  connect(rate, &QLineEdit::textEdited, this, [this] { rateEdited_ = true; });
  AskOnLeaving(rate, [this, tier] { return TierRateNotice(ReadBoxes(), tier); });
  OnLostFocus(rate, [this, tier](const QString& next) { txtInt_LostFocus(tier, next); });
  if (auto* above = Box("TxtAbove", tier)) {
    FitToDigits(*above, FieldLength::kMoney);
    above->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (tier == kMostTiers) return;
  auto* bound = Box("txt_bne", tier);
  BindNumeric(bound, {.repairMinus = true,
                      .decimals = kTierBoundDecimals.decimals,
                      .kind = kTierBoundDecimals.kind});
  SelectTextOnFocus(bound);
  RewriteOnLeaving(bound);
  OnLostFocus(bound, [this, tier](const QString&) { txt_bne_LostFocus(tier); });
}

void TierTableWindow::Form_Load() {
  const bool statement = session().workflow == Workflow::Statement;
  setWindowTitle(statement ? "Periodic Statements APY - Tiered Calculations"
                           : "Disclosures & Advertisements APY - Tiered Calculations");
  const bool methodA = session().Kind() == AccountKind::TierA;
  ui_->lblMethod->setText(methodA ? "Method A" : "Method B");
  WriteBoxes(session().Tiers());
  cboTotalTiers_Click();
}

void TierTableWindow::Form_Activate() {
  ui_->cboTotalTiers->setFocus();
}

int TierTableWindow::ChosenCount() const {
  return ui_->cboTotalTiers->currentText().toInt();
}

TierTable TierTableWindow::ReadBoxes() const {
  TierTable table{ChosenCount(), {}};
  for (int tier = 1; tier <= kMostTiers; ++tier) {
    table.Of(tier).rate = TextOf(Box("txtInt", tier));
    if (tier < kMostTiers) table.Of(tier).notExceeding = TextOf(Box("txt_bne", tier));
  }
  return table;
}

void TierTableWindow::WriteBoxes(const TierTable& table) {
  ui_->cboTotalTiers->setCurrentIndex(table.count == 0 ? -1 : table.count - kFewestTiers);
  for (int tier = 1; tier <= kMostTiers; ++tier) {
    const auto& [rate, notExceeding] = table.Of(tier);
    SetText(Box("txtInt", tier), rate);
    if (tier == kMostTiers) continue;
    SetText(Box("txt_bne", tier), notExceeding);
    SetText(Box("TxtAbove", tier + 1), notExceeding);
  }
}

void TierTableWindow::ShowRows() {
  const int tiers = ChosenCount();
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
  ui_->txtTotalTiers->setText(ui_->cboTotalTiers->currentText());
  ShowRows();
  ui_->cmdCalculate->setEnabled(ChosenCount() > 0);
}

void TierTableWindow::txtInt_LostFocus(int tier, const QString& next) {
  // Continue has a message of its own, and nothing is demanded on the way out.
  static const QStringList silent = {"cmdCalculate", "cmdBack", "cmdExit", "mnuMain", "mnuExit"};
  auto* rate = Box("txtInt", tier);
  const bool emptied = std::exchange(rateEdited_, false) && rate->text().isEmpty();
  if (!emptied || silent.contains(next)) return;
  Tell({"Please input Interest Rate for Tier " + std::to_string(tier)});
  HoldFocus(rate);
}

void TierTableWindow::txt_bne_LostFocus(int tier) {
  SetText(Box("TxtAbove", tier + 1), TextOf(Box("txt_bne", tier)));
}

void TierTableWindow::cmdCalculate_Click() {
  const TierTable table = ReadBoxes();
  if (const auto refused = CheckTierTable(table)) {
    auto* box = findChild<QLineEdit*>(QString::fromStdString(refused->refusal.field));
    if (refused->clearsBox) box->clear();
    return Tell(refused->refusal);
  }
  routes().ContinueTierTable(WithoutUnusedTiers(table));
}

}  // namespace corvane
