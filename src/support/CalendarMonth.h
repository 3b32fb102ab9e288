#pragma once

#include <optional>

#include "support/Dates.h"

namespace corvane {

/// Where a day stands in the grid of 7 columns (Sunday first) and 6 rows, both from 0.
struct DayCell {
  int column = 0;
  int row = 0;
};

/// Weekday of the month's first day, 0 for Sunday: the number of empty cells before it.
int MonthOffset(const Date& date);

int DaysOfMonth(const Date& date);

DayCell CellOf(const Date& date);

/// The day of the date's month in a cell of the grid; nothing for a cell before the first or after
/// the last day.
std::optional<Date> DayInCell(const Date& month, const DayCell& cell);

}  // namespace corvane
