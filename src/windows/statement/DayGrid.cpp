#include "windows/statement/DayGrid.h"

#include <QtWidgets>

#include "windows/frame/FieldText.h"
#include "windows/frame/PageLayout.h"

namespace corvane {

namespace {

constexpr int kRowsPerColumn = 11;
constexpr int kColumns = 3;
// Three columns have to fit beside each other on a small screen, in a font of 14 points.
constexpr int kBalanceDigits = 11;  ///< "99999999.99"
constexpr int kRateDigits = 6;      ///< "10.1234", whose point is narrow
constexpr int kGridColumns = 4;     ///< label, balance, rate and the gap to the next three

QLineEdit* MakeField(QWidget& parent, const char* name, int index, const char* tip) {
  auto* field = new QLineEdit(&parent);
  field->setObjectName(QString("%1(%2)").arg(name).arg(index));
  field->setToolTip(tip);
  return field;
}

/// A rate that is worked out is there to be read, though it cannot be typed.
void KeepReadable(QLineEdit* field) {
  QPalette palette = field->palette();
  palette.setBrush(QPalette::Disabled, QPalette::Text,
                   palette.brush(QPalette::Active, QPalette::Text));
  field->setPalette(palette);
}

/// How many days a key goes on (1) or back (-1); 0 for any other key.
int DaysMoved(const QKeyEvent& press) {
  if (press.modifiers() & ~Qt::KeypadModifier) return 0;
  switch (press.key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 1;
    case Qt::Key_Up:
      return -1;
    default:
      return 0;
  }
}

}  // namespace

DayGrid::DayGrid(QFrame& frame, QGridLayout& layout, QWidget& behind) : layout_(layout) {
  QWidget* last = &behind;
  for (std::size_t index = 0; index < rows_.size(); ++index) {
    const Row& row = rows_[index] = MakeRow(frame, static_cast<int>(index));
    QWidget::setTabOrder(last, row.balance);
    QWidget::setTabOrder(row.balance, row.rate);
    last = row.rate;
  }
  // What is left over comes behind the days: few days look as they do among many.
  layout_.setColumnStretch(kColumns * kGridColumns, 1);
}

DayGrid::Row DayGrid::MakeRow(QFrame& frame, int index) {
  const Row row{new QLabel(&frame), MakeField(frame, "txtDayBal", index, "Daily Balance"),
                MakeField(frame, "txtRate", index, "Daily Interest Rate")};
  KeepReadable(row.rate);
  row.label->setObjectName(QString("lblDay(%1)").arg(index));
  row.label->setBuddy(row.balance);
  row.label->setMinimumWidth(row.label->fontMetrics().horizontalAdvance("May 00"));
  const int line = 1 + index % kRowsPerColumn;
  const int column = kGridColumns * (index / kRowsPerColumn);
  for (QLineEdit* field : {row.balance, row.rate}) field->installEventFilter(this);
  layout_.addWidget(row.label, line, column);
  layout_.addWidget(row.balance, line, column + 1);
  layout_.addWidget(row.rate, line, column + 2);
  return row;
}

void DayGrid::FitFields(bool hasRoom) {
  for (const Row& row : rows_) {
    FitToDigits(*row.balance, hasRoom ? FieldLength::kMoney : kBalanceDigits);
    FitToDigits(*row.rate, kRateDigits);
  }
}

QLineEdit* DayGrid::FieldAt(const DayPlace& place) const {
  const Row& row = rows_.at(place.day % kDaysPerPage);
  return place.isRate ? row.rate : row.balance;
}

std::optional<DayPlace> DayGrid::PlaceOf(const QObject* field) const {
  if (!daily_) return std::nullopt;
  const DaySpan span = DaysOnPage(page_, daily_->days.size());
  for (std::size_t day = span.first; day < span.end; ++day) {
    const Row& row = rows_[day - span.first];
    if (field == row.balance || field == row.rate) return DayPlace{day, field == row.rate};
  }
  return std::nullopt;
}

void DayGrid::ShowPage(int page) {
  page_ = page;
  const DaySpan span = DaysOnPage(page, daily_->days.size());
  if (place_.day < span.first || place_.day >= span.end) place_ = {span.first};
  for (std::size_t row = 0; row < rows_.size(); ++row) ShowRow(row);
  for (int column = 0; column < kColumns; ++column) {
    const bool hasDays = span.end - span.first > std::size_t(column * kRowsPerColumn);
    for (const int heading : {0, 2}) {
      layout_.itemAtPosition(0, kGridColumns * column + heading)->widget()->setVisible(hasDays);
    }
  }
}

void DayGrid::ShowRow(std::size_t row) {
  const std::size_t day = FirstDay() + row;
  const auto& [label, balance, rate] = rows_[row];
  const bool exists = day < daily_->days.size();
  const DayEntry texts = exists ? daily_->days[day] : DayEntry{};
  const QString date = QString::fromStdString(DayLabel(*daily_, day));
  label->setText(date);
  label->setVisible(exists);
  balance->setVisible(exists);
  balance->setAccessibleName("Daily balance " + date);
  SetText(balance, texts.balance);
  rate->setVisible(exists);
  rate->setEnabled(daily_->TakesRates());
  rate->setAccessibleName("Rate " + date);
  SetText(rate, texts.rate);
}

DayEntry DayGrid::Typed(std::size_t day) const {
  const Row& row = rows_.at(day % kDaysPerPage);
  return {TextOf(row.balance), TextOf(row.rate)};
}

bool DayGrid::Take(DailyBalances days) {
  const bool isChange = ChangedDays(*daily_, days).has_value();
  if (isChange) Remember(history_, *daily_);
  *daily_ = std::move(days);
  return isChange;
}

bool DayGrid::TakeField(const DayPlace& place) {
  const DayEntry typed = Typed(place.day);
  DailyBalances days = *daily_;
  if (place.isRate) TakeDay(days, place.day, typed);
  if (!place.isRate) EnterBalance(days, place.day, typed.balance);
  const bool isChange = Take(std::move(days));
  if (!place.isRate) ShowRow(place.day - FirstDay());
  return isChange;
}

void DayGrid::TakePage() {
  const DaySpan span = DaysOnPage(page_, daily_->days.size());
  for (std::size_t day = span.first; day < span.end; ++day) TakeDay(*daily_, day, Typed(day));
}

std::optional<std::size_t> DayGrid::TakeBack() {
  const DailyBalances before = *daily_;
  *daily_ = corvane::TakeBack(history_, before);
  const auto changed = ChangedDays(before, *daily_);
  return changed ? std::optional(changed->first) : std::nullopt;
}

bool DayGrid::IsTyping(const DayPlace& place) const {
  const auto& [balance, rate] = daily_->days.at(place.day);
  const QLineEdit* field = FieldAt(place);
  return field->isUndoAvailable() && TextOf(field) != (place.isRate ? rate : balance);
}

bool DayGrid::eventFilter(QObject* watched, QEvent* event) {
  const auto place = PlaceOf(watched);
  if (place && event->type() == QEvent::FocusIn) place_ = *place;
  return place && event->type() == QEvent::KeyPress &&
         HandlesKey(*place, *static_cast<QKeyEvent*>(event));
}

bool DayGrid::HandlesKey(const DayPlace& place, const QKeyEvent& press) {
  if (press.matches(QKeySequence::Undo) && !IsTyping(place)) {
    emit TakesBack();
    return true;
  }
  const int days = DaysMoved(press);
  const bool isBefore = place.day == 0 && days < 0;
  if (days != 0 && !isBefore)
    emit GoesTo({place.day + static_cast<std::size_t>(days), place.isRate});
  return days != 0;
}

}  // namespace corvane
