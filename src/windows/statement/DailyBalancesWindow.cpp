#include "windows/statement/DailyBalancesWindow.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "platform/OpenDialog.h"
#include "statement/DayFilling.h"
#include "statement/DayNotice.h"
#include "statement/DayTable.h"
#include "support/ProgramTitle.h"
#include "support/WholeFile.h"
#include "ui_DailyBalancesWindow.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/statement/DayGrid.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 10;
/// Three columns of a page have to fit beside each other at every size of the font.
constexpr int kBalanceDigits = 12;

}  // namespace

DailyBalancesWindow::DailyBalancesWindow(WindowRegistry& registry)
    : Form(registry, Role::Secondary), ui_(std::make_unique<Ui::DailyBalancesWindow>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  NameArrayElements();
  grid_ = std::make_unique<DayGrid>(*ui_->fraDays, *ui_->days);
  BindFields();
  BindCommands();
  OrderTabs();
  BindCommonMenus(kHelpContext);
}

DailyBalancesWindow::~DailyBalancesWindow() = default;

void DailyBalancesWindow::BindFields() {
  for (std::size_t row = 0; row < grid_->Rows().size(); ++row) {
    const auto& [label, balance, rate] = grid_->Rows()[row];
    BindNumeric(balance, {.repairMinus = true, .decimals = 2, .kind = "bal"});
    BindNumeric(rate, {.repairMinus = true, .decimals = 4, .kind = "int"});
    FitToDigits(*balance, kBalanceDigits);
    SelectTextOnFocus(balance);
    SelectTextOnFocus(rate);
    OnLostFocus(balance, [this, row](const QString&) { txtDayBal_LostFocus(row); });
    OnLostFocus(rate, [this, row](const QString&) { txtRate_LostFocus(row); });
  }
}

void DailyBalancesWindow::BindCommands() {
  OnClick(ui_->cmdPrevious, [this] { LeaveForPage(grid_->Page() - 1); });
  OnClick(ui_->cmdNext, [this] { LeaveForPage(grid_->Page() + 1); });
  OnClick(ui_->cmdContinue, [this] { cmdContinue_Click(); });
  OnClick(ui_->cmdClear, [this] {
    Fill(ClearDays(*daily_));
    GoToPage(1);
  });
  OnClick(ui_->cmdPrint, [this] { cmdPrint_Click(); });
  OnMenu(ui_->mnuUndo, [this] { mnuUndo_Click(); });
  OnMenu(ui_->mnuPaste,
         [this] { PasteInto(grid_->FieldAt(place_), QGuiApplication::clipboard()->text()); });
  OnMenu(ui_->mnuCopyBefore, [this] { Fill(CopyDayBefore(*daily_, place_.day)); });
  OnMenu(ui_->mnuCopyToEnd, [this] { Fill(CopyToEnd(*daily_, place_.day)); });
  OnMenu(ui_->mnuLoad, [this] { mnuLoad_Click(); });
}

/// The days, then the buttons; whoever has typed a page goes on with Next.
void DailyBalancesWindow::OrderTabs() {
  QWidget* last = ui_->cmdPrint;
  const auto append = [&last](QWidget* next) {
    setTabOrder(last, next);
    last = next;
  };
  for (const auto& [label, balance, rate] : grid_->Rows()) {
    append(balance);
    append(rate);
  }
  for (QWidget* button :
       {ui_->cmdNext, ui_->cmdPrevious, ui_->cmdContinue, ui_->cmdClear, ui_->cmdPrint}) {
    append(button);
  }
}

bool DailyBalancesWindow::Form_QueryUnload() {
  return AskYesNo(
      this, "Any data you have entered will be lost. Are you sure you want to close this window?",
      kProgramTitle, QMessageBox::No);
}

void DailyBalancesWindow::Edit(DailyBalances& daily, std::optional<ComputedDays>& computed) {
  daily_ = &daily;
  computed_ = &computed;
  setWindowTitle(windowTitle() + " - " + ColumnName(daily.column));
  ui_->lblMinADB->setText(QString::fromStdString(MinimumAdbText(daily.account)));
  ui_->lblMinBal->setText(QString::fromStdString(MinimumDailyBalanceText(daily.account)));
  GoToPage(1);
}

bool DailyBalancesWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto place = grid_->PlaceOf(watched);
  if (place && event->type() == QEvent::FocusIn) place_ = *place;
  const bool handled = place && event->type() == QEvent::KeyPress &&
                       HandlesKey(*place, *static_cast<QKeyEvent*>(event));
  return handled || Form::eventFilter(watched, event);
}

bool DailyBalancesWindow::HandlesKey(const DayPlace& place, const QKeyEvent& press) {
  if (press.matches(QKeySequence::Undo)) return !IsTyping(place) && (mnuUndo_Click(), true);
  if (press.modifiers() & ~Qt::KeypadModifier) return false;
  const bool goesUp = press.key() == Qt::Key_Up;
  const bool goesOn =
      press.key() == Qt::Key_Down || press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
  if (goesUp && place.day > 0) GoTo({place.day - 1, place.isRate});
  if (goesOn) GoTo({place.day + 1, place.isRate});
  return goesUp || goesOn;
}

void DailyBalancesWindow::GoTo(const DayPlace& place) {
  if (place.day >= daily_->days.size()) return FocusField(ui_->cmdContinue);
  const int page = PageOf(place.day);
  // As by the button, so that the page is left as its fields demand.
  if (page > grid_->Page()) ui_->cmdNext->click();
  if (page < grid_->Page()) ui_->cmdPrevious->click();
  if (page == grid_->Page()) FocusField(grid_->FieldAt(place));
}

void DailyBalancesWindow::PasteInto(QLineEdit* field, const QString& text) {
  const std::string pasted = text.toStdString();
  FocusField(field);
  if (!IsTable(pasted)) return Form::PasteInto(field, text);
  Fill(PasteDays(*daily_, place_, pasted));
}

/// What is being typed is the field's own to take back.
bool DailyBalancesWindow::IsTyping(const DayPlace& place) const {
  const auto& [balance, rate] = daily_->days.at(place.day);
  const QLineEdit* field = grid_->FieldAt(place);
  return field->isUndoAvailable() && TextOf(field) != (place.isRate ? rate : balance);
}

void DailyBalancesWindow::mnuUndo_Click() {
  // A field that shows other days must not take them for what was typed.
  FocusField(ui_->cmdContinue);
  const DailyBalances before = *daily_;
  *daily_ = TakeBack(history_, *daily_);
  const auto changed = ChangedDays(before, *daily_);
  const std::size_t day = changed ? changed->first : place_.day;
  ShowPage(PageOf(day));
  FocusField(grid_->FieldAt({day}));
}

void DailyBalancesWindow::mnuLoad_Click() {
  const auto path = AskOpenPath(this, "Load Days from File", "Tables (*.csv *.txt);;All files (*)");
  if (!path) return;
  const auto text = ReadWholeFile(path->toStdString());
  if (const auto* error = std::get_if<FileError>(&text)) {
    return Tell({"The file cannot be read: " + error->reason, FieldAt(place_)});
  }
  Fill(LoadDays(*daily_, std::get<std::string>(text)));
}

void DailyBalancesWindow::Take(DailyBalances days) {
  if (ChangedDays(*daily_, days)) Remember(history_, *daily_);
  *daily_ = std::move(days);
}

void DailyBalancesWindow::Fill(const std::variant<DailyBalances, Refusal>& days) {
  if (const auto* refusal = std::get_if<Refusal>(&days)) return Tell(*refusal);
  const std::string change = ChangeText(*daily_, std::get<DailyBalances>(days));
  Take(std::get<DailyBalances>(days));
  ShowPage(grid_->Page());
  FocusField(grid_->FieldAt(place_));
  if (!change.empty()) ShowHint(change);
}

void DailyBalancesWindow::LeaveForPage(int page) {
  if (TakePage()) GoToPage(page);
}

void DailyBalancesWindow::GoToPage(int page) {
  ShowPage(page);
  FocusField(grid_->Rows().front().balance);
}

void DailyBalancesWindow::ShowPage(int page) {
  grid_->ShowPage(*daily_, page);
  ui_->cmdPrevious->setEnabled(page > 1);
  ui_->cmdNext->setEnabled(HasNextPage(page, daily_->days.size()));
  ShowSummary();
}

void DailyBalancesWindow::ShowSummary() {
  ui_->lblSummary->setText(QString::fromStdString(SummaryText(*daily_)));
}

bool DailyBalancesWindow::TakePage() {
  const DaySpan span = grid_->Days(*daily_);
  for (std::size_t day = span.first; day < span.end; ++day) {
    TakeDay(*daily_, day, grid_->Typed(day));
  }
  const auto refusal = CheckPage(*daily_, grid_->Page());
  if (refusal) Tell(*refusal);
  return !refusal;
}

void DailyBalancesWindow::txtDayBal_LostFocus(std::size_t row) {
  const std::size_t day = grid_->Days(*daily_).first + row;
  DailyBalances days = *daily_;
  EnterBalance(days, day, grid_->Typed(day).balance);
  const bool changed = ChangedDays(*daily_, days).has_value();
  Take(std::move(days));
  grid_->ShowDay(*daily_, day);
  ShowSummary();
  const auto notice = DayNotice(*daily_, day);
  if (changed && notice) ShowHint(*notice);
}

void DailyBalancesWindow::txtRate_LostFocus(std::size_t row) {
  const std::size_t day = grid_->Days(*daily_).first + row;
  DailyBalances days = *daily_;
  TakeDay(days, day, grid_->Typed(day));
  Take(std::move(days));
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
    ShowPage(grid_->Page());
    return Tell(*refusal);
  }
  *computed_ = std::get<ComputedDays>(std::move(computed));
  windows().Close(*this);
}

void DailyBalancesWindow::cmdPrint_Click() {
  if (!TakePage()) return;
  FillRates(*daily_);
  ShowPage(grid_->Page());
  routes().ShowInterestReport(*daily_);
}

}  // namespace corvane
