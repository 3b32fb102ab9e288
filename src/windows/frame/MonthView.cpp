#include "windows/frame/MonthView.h"

#include <QtWidgets>

#include "support/CalendarMonth.h"
#include "support/Clock.h"
#include "windows/frame/MonthAccess.h"

namespace corvane {

namespace {

constexpr int kColumns = 7;
constexpr int kRows = 6;

}  // namespace

MonthView::MonthView(QWidget* parent) : QWidget(parent), current_(Today()) {
  const QSize cell = fontMetrics().size(Qt::TextSingleLine, "0000") * 1.1;
  setMinimumSize(cell.width() * kColumns + 1, cell.height() * kRows + 1);
}

void MonthView::ShowDay(const Date& date) {
  current_ = date;
  setAccessibleName(QString::fromStdString(FormatDate(date)));
  update();
  TellOfCurrentDay(*this, date.day());
}

void MonthView::SetChosen(bool isChosen) {
  isChosen_ = isChosen;
  update();
}

QSize MonthView::Cell() const {
  return {(width() - 1) / kColumns, (height() - 1) / kRows};
}

QRectF MonthView::CellRect(const Date& date) const {
  const DayCell cell = CellOf(date);
  const QSize size = Cell();
  return QRectF(QPointF(cell.column * size.width(), cell.row * size.height()), size);
}

std::optional<Date> MonthView::DayAt(const QPointF& place) const {
  const QSize size = Cell();
  return DayInCell(current_, {static_cast<int>(place.x()) / size.width(),
                              static_cast<int>(place.y()) / size.height()});
}

void MonthView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().button());
  for (int number = 1; number <= DaysOfMonth(current_); ++number) {
    PaintDay(painter,
             {current_.year(), current_.month(), std::chrono::day{static_cast<unsigned>(number)}});
  }
  PaintMark(painter);
}

void MonthView::PaintDay(QPainter& painter, const Date& date) const {
  const bool isChosen = isChosen_ && date == current_;
  if (isChosen) painter.fillRect(CellRect(date), palette().highlight());
  painter.setPen(palette().color(isChosen ? QPalette::HighlightedText : QPalette::ButtonText));
  QFont font = this->font();
  font.setBold(date == Today());
  painter.setFont(font);
  const auto number = static_cast<unsigned>(date.day());
  painter.drawText(CellRect(date), Qt::AlignCenter, QString::number(number));
}

void MonthView::PaintMark(QPainter& painter) const {
  const QRectF cell = CellRect(current_);
  painter.setPen(palette().color(QPalette::Dark));
  painter.drawLine(cell.topLeft(), cell.topRight());
  painter.drawLine(cell.topLeft(), cell.bottomLeft());
  painter.setPen(palette().color(QPalette::Light));
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  painter.drawLine(cell.topRight(), cell.bottomRight());
}

}  // namespace corvane
