#pragma once

#include <optional>

#include <QWidget>

#include "support/Dates.h"

namespace corvane {

/// The days of a month as a calendar shows them, painted in cells: seven columns from Sunday on.
/// One day is marked; it may be chosen as well, which is drawn stronger.
class MonthView : public QWidget {
  Q_OBJECT

 public:
  explicit MonthView(QWidget* parent);

  /// Shows the month of a day that is marked, for eyes and screen readers.
  void ShowDay(const Date& date);
  void SetChosen(bool isChosen);

  /// The day that is marked.
  const Date& Current() const { return current_; }
  /// Place of a day of its month.
  QRectF CellRect(const Date& date) const;
  /// The day at a place; nothing beside the days.
  std::optional<Date> DayAt(const QPointF& place) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintDay(QPainter& painter, const Date& date) const;
  void PaintMark(QPainter& painter) const;
  QSize Cell() const;

  Date current_;
  bool isChosen_ = false;
};

}  // namespace corvane
