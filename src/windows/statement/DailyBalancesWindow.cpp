#include "windows/statement/DailyBalancesWindow.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "platform/WorkArea.h"
#include "support/ProgramTitle.h"
#include "ui_DailyBalancesWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 10;
constexpr int kRowsPerColumn = 11;
constexpr int kGridColumns = 4;  ///< label, balance, rate and the gap to the next three
constexpr int kFieldWidth = 100;
constexpr int kRateWidth = 76;

QLineEdit* MakeField(QWidget* parent, const char* name, int index, const char* tip, int width) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(QString("%1(%2)").arg(name).arg(index));
  field->setToolTip(tip);
  field->setMinimumWidth(width);
  field->setAlignment(Qt::AlignRight);
  return field;
}

/// A rate that is worked out is there to be read, though it cannot be typed.
void KeepReadable(QLineEdit* field) {
  QPalette palette = field->palette();
  palette.setBrush(QPalette::Disabled, QPalette::Text,
                   palette.brush(QPalette::Active, QPalette::Text));
  field->setPalette(palette);
}

}  // namespace

DailyBalancesWindow::DailyBalancesWindow(WindowRegistry& registry)
    : Form(registry, Role::Secondary), ui_(std::make_unique<Ui::DailyBalancesWindow>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  NameArrayElements();
  BuildRows();
  OnClick(ui_->cmdPrevious, [this] { LeaveForPage(page_ - 1); });
  OnClick(ui_->cmdNext, [this] { LeaveForPage(page_ + 1); });
  OnClick(ui_->cmdContinue, [this] { cmdContinue_Click(); });
  OnClick(ui_->cmdClear, [this] { cmdClear_Click(); });
  OnClick(ui_->cmdPrint, [this] { cmdPrint_Click(); });
  EnterPresses({ui_->cmdNext, ui_->cmdContinue});
  BindCommonMenus(kHelpContext);
}

DailyBalancesWindow::~DailyBalancesWindow() = default;

void DailyBalancesWindow::BuildRows() {
  QWidget* last = ui_->cmdPrint;
  for (std::size_t index = 0; index < rows_.size(); ++index) {
    rows_[index] = MakeRow(static_cast<int>(index));
    BindRow(index);
    QWidget::setTabOrder(last, rows_[index].balance);
    QWidget::setTabOrder(rows_[index].balance, rows_[index].rate);
    last = rows_[index].rate;
  }
}

DailyBalancesWindow::Row DailyBalancesWindow::MakeRow(int index) {
  const Row row{new QLabel(ui_->fraDays),
                MakeField(ui_->fraDays, "txtDayBal", index, "Daily Balance", kFieldWidth),
                MakeField(ui_->fraDays, "txtRate", index, "Daily Interest Rate", kRateWidth)};
  KeepReadable(row.rate);
  row.label->setObjectName(QString("lblDay(%1)").arg(index));
  row.label->setBuddy(row.balance);
  const int line = 1 + index % kRowsPerColumn;
  const int column = kGridColumns * (index / kRowsPerColumn);
  ui_->days->addWidget(row.label, line, column);
  ui_->days->addWidget(row.balance, line, column + 1);
  ui_->days->addWidget(row.rate, line, column + 2);
  return row;
}

void DailyBalancesWindow::BindRow(std::size_t index) {
  const Row& row = rows_[index];
  BindNumeric(row.balance, {.repairMinus = true,
                            .decimals = kDayBalanceDecimals.decimals,
                            .kind = kDayBalanceDecimals.kind});
  BindNumeric(
      row.rate,
      {.repairMinus = true, .decimals = kDayRateDecimals.decimals, .kind = kDayRateDecimals.kind});
  SelectTextOnFocus(row.balance);
  SelectTextOnFocus(row.rate);
  OnLostFocus(row.balance, [this, index](const QString&) { txtDayBal_LostFocus(index); });
  OnLostFocus(row.rate, [this, index](const QString&) { txtRate_LostFocus(index); });
}

void DailyBalancesWindow::Form_Load() {
  CenterInWorkArea(*this);
}

bool DailyBalancesWindow::Form_QueryUnload() {
  return AskYesNo(
      this, "Any data you have entered will be lost. Are you sure you want to close this window?",
      kProgramTitle);
}

void DailyBalancesWindow::Edit(DailyBalances& daily, std::optional<ComputedDays>& computed) {
  daily_ = &daily;
  computed_ = &computed;
  ui_->lblMinADB->setText(QString::fromStdString(MinimumAdbText(daily.account)));
  ui_->lblMinBal->setText(QString::fromStdString(MinimumDailyBalanceText(daily.account)));
  GoToPage(1);
}

void DailyBalancesWindow::LeaveForPage(int page) {
  if (TakePage()) GoToPage(page);
}

void DailyBalancesWindow::GoToPage(int page) {
  page_ = page;
  ShowPage();
  FocusField(rows_.front().balance);
}

void DailyBalancesWindow::ShowPage() {
  const std::size_t first = ShownDays().first;
  for (std::size_t row = 0; row < rows_.size(); ++row) ShowRow(row, first + row);
  ui_->cmdPrevious->setEnabled(page_ > 1);
  ui_->cmdNext->setEnabled(HasNextPage(page_, daily_->days.size()));
}

void DailyBalancesWindow::ShowRow(std::size_t row, std::size_t day) {
  const Row& controls = rows_[row];
  const bool exists = day < daily_->days.size();
  const DayEntry texts = exists ? daily_->days[day] : DayEntry{};
  const QString label = QString::fromStdString(DayLabel(*daily_, day));
  controls.label->setText(label);
  controls.label->setVisible(exists);
  controls.balance->setVisible(exists);
  controls.balance->setAccessibleName("Daily balance " + label);
  SetText(controls.balance, texts.balance);
  controls.rate->setVisible(exists);
  controls.rate->setEnabled(daily_->TakesRates());
  controls.rate->setAccessibleName("Rate " + label);
  SetText(controls.rate, texts.rate);
}

bool DailyBalancesWindow::TakePage() {
  const DaySpan span = ShownDays();
  for (std::size_t day = span.first; day < span.end; ++day) TakeRow(day - span.first, day);
  const auto refusal = CheckPage(*daily_, page_);
  if (refusal) Tell(*refusal);
  return !refusal;
}

void DailyBalancesWindow::TakeRow(std::size_t row, std::size_t day) {
  TakeDay(*daily_, day, {TextOf(rows_[row].balance), TextOf(rows_[row].rate)});
}

void DailyBalancesWindow::txtDayBal_LostFocus(std::size_t row) {
  const std::size_t day = ShownDays().first + row;
  EnterBalance(*daily_, day, TextOf(rows_[row].balance));
  ShowRow(row, day);
}

void DailyBalancesWindow::txtRate_LostFocus(std::size_t row) {
  TakeRow(row, ShownDays().first + row);
}

bool DailyBalancesWindow::AcceptsEmptyDays() {
  const auto question = EmptyDaysQuestion(*daily_);
  return !question ||
         AskYesNo(this, QString::fromStdString(*question), kProgramTitle, QMessageBox::No);
}

void DailyBalancesWindow::cmdContinue_Click() {
  if (!TakePage() || !AcceptsEmptyDays()) return;
  FillRates(*daily_);
  auto computed = ComputeAdb(*daily_);
  if (const auto* refusal = std::get_if<Refusal>(&computed)) {
    ShowPage();
    return Tell(*refusal);
  }
  *computed_ = std::get<ComputedDays>(std::move(computed));
  windows().Close(*this);
}

void DailyBalancesWindow::cmdClear_Click() {
  ClearDays(*daily_);
  GoToPage(1);
}

void DailyBalancesWindow::cmdPrint_Click() {
  if (!TakePage()) return;
  FillRates(*daily_);
  ShowPage();
  routes().ShowInterestReport(*daily_);
}

}  // namespace corvane
