#pragma once

#include <array>
#include <functional>

#include "statement/DailyBalances.h"

class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QObject;

namespace corvane {

/// The fields of a page of days, in three columns below headings that the window's file has.
class DayGrid {
 public:
  struct Row {
    QLabel* label;
    QLineEdit* balance;
    QLineEdit* rate;
  };

  /// Makes the fields; the frame owns them.
  DayGrid(QFrame& frame, QGridLayout& layout);

  const std::array<Row, kDaysPerPage>& Rows() const { return rows_; }
  QLineEdit* FieldAt(const DayPlace& place) const;

  /// Shows the days of a page (1 to 3), with headings over the columns that have any.
  void ShowPage(const DailyBalances& daily, int page);
  void ShowDay(const DailyBalances& daily, std::size_t day);
  /// The page that was shown last.
  int Page() const { return page_; }
  DaySpan Days(const DailyBalances& daily) const { return DaysOnPage(page_, daily.days.size()); }

  /// What stands in the fields of a day of the page.
  DayEntry Typed(std::size_t day) const;
  /// The place of a field of the page; nothing for any other object.
  std::optional<DayPlace> PlaceOf(const QObject* field) const;

 private:
  Row MakeRow(QFrame& frame, int index);
  void ShowRow(const DailyBalances& daily, std::size_t row);

  QGridLayout& layout_;
  std::array<Row, kDaysPerPage> rows_{};
  int page_ = 1;
};

}  // namespace corvane
