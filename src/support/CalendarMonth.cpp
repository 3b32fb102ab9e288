#include "support/CalendarMonth.h"

namespace corvane {

using namespace std::chrono;

namespace {

constexpr int kColumns = 7;

}  // namespace

int MonthOffset(const Date& date) {
  const weekday first{sys_days{date.year() / date.month() / 1}};
  return static_cast<int>(first.c_encoding());
}

int DaysOfMonth(const Date& date) {
  return static_cast<int>(static_cast<unsigned>((date.year() / date.month() / last).day()));
}

DayCell CellOf(const Date& date) {
  const int index = MonthOffset(date) + static_cast<int>(static_cast<unsigned>(date.day())) - 1;
  return {index % kColumns, index / kColumns};
}

std::optional<Date> DayInCell(const Date& month, const DayCell& cell) {
  const int dayNumber = cell.row * kColumns + cell.column + 1 - MonthOffset(month);
  const bool inMonth = cell.column >= 0 && cell.column < kColumns && dayNumber >= 1 &&
                       dayNumber <= DaysOfMonth(month);
  if (!inMonth) return std::nullopt;
  return Date{month.year(), month.month(), day{static_cast<unsigned>(dayNumber)}};
}

}  // namespace corvane
