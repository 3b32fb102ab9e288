#include "windows/statement/DayGrid.h"

#include <QtWidgets>

#include "windows/frame/Form.h"

namespace corvane {

namespace {

constexpr int kRowsPerColumn = 11;
constexpr int kColumns = 3;
constexpr int kGridColumns = 4;  ///< label, balance, rate and the gap to the next three

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

}  // namespace

DayGrid::DayGrid(QFrame& frame, QGridLayout& layout) : layout_(layout) {
  for (std::size_t index = 0; index < rows_.size(); ++index) {
    rows_[index] = MakeRow(frame, static_cast<int>(index));
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
  row.label->setMinimumWidth(row.label->fontMetrics().horizontalAdvance("Mmm 00"));
  const int line = 1 + index % kRowsPerColumn;
  const int column = kGridColumns * (index / kRowsPerColumn);
  layout_.addWidget(row.label, line, column);
  layout_.addWidget(row.balance, line, column + 1);
  layout_.addWidget(row.rate, line, column + 2);
  return row;
}

QLineEdit* DayGrid::FieldAt(const DayPlace& place) const {
  const Row& row = rows_.at(place.day % kDaysPerPage);
  return place.isRate ? row.rate : row.balance;
}

void DayGrid::ShowPage(const DailyBalances& daily, int page) {
  page_ = page;
  for (std::size_t row = 0; row < rows_.size(); ++row) ShowRow(daily, row);
  const DaySpan span = Days(daily);
  for (int column = 0; column < kColumns; ++column) {
    const bool hasDays = span.end - span.first > std::size_t(column * kRowsPerColumn);
    for (const int heading : {0, 2}) {
      layout_.itemAtPosition(0, kGridColumns * column + heading)->widget()->setVisible(hasDays);
    }
  }
}

void DayGrid::ShowDay(const DailyBalances& daily, std::size_t day) {
  ShowRow(daily, day % kDaysPerPage);
}

void DayGrid::ShowRow(const DailyBalances& daily, std::size_t row) {
  const std::size_t day = kDaysPerPage * static_cast<std::size_t>(page_ - 1) + row;
  const auto& [label, balance, rate] = rows_[row];
  const bool exists = day < daily.days.size();
  const DayEntry texts = exists ? daily.days[day] : DayEntry{};
  const QString date = QString::fromStdString(DayLabel(daily, day));
  label->setText(date);
  label->setVisible(exists);
  balance->setVisible(exists);
  balance->setAccessibleName("Daily balance " + date);
  SetText(balance, texts.balance);
  rate->setVisible(exists);
  rate->setEnabled(daily.TakesRates());
  rate->setAccessibleName("Rate " + date);
  SetText(rate, texts.rate);
}

DayEntry DayGrid::Typed(std::size_t day) const {
  const Row& row = rows_.at(day % kDaysPerPage);
  return {TextOf(row.balance), TextOf(row.rate)};
}

std::optional<DayPlace> DayGrid::PlaceOf(const QObject* field) const {
  std::size_t day = kDaysPerPage * static_cast<std::size_t>(page_ - 1);
  for (const Row& row : rows_) {
    if (field == row.balance || field == row.rate) return DayPlace{day, field == row.rate};
    ++day;
  }
  return std::nullopt;
}

}  // namespace corvane
