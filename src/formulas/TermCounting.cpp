#include "formulas/TermCounting.h"

namespace corvane {

std::int16_t CountLeapDays(const Date& start, const Date& end) {
  std::int16_t count = 0;
  for (std::chrono::year year = start.year(); year <= end.year(); ++year) {
    const Date leapDay{year, std::chrono::month{2}, std::chrono::day{29}};
    if (leapDay.ok() && leapDay >= start && leapDay <= end) ++count;
  }
  return count;
}

int CalendarTermDays(const Date& start, const Date& end, bool countLeapDay) {
  const int days = DaysBetween(start, end);
  return countLeapDay ? days : days - CountLeapDays(start, end);
}

}  // namespace corvane
