#include "formulas/TermCounting.h"

#include <cmath>

namespace corvane {

using namespace std::chrono;

namespace {

constexpr int kMonthsOfYear = 12;

int DaysInMonth(year_month month, bool countLeapDay) {
  const auto days = static_cast<unsigned>((month / last).day());
  return days == 29 && !countLeapDay ? 28 : static_cast<int>(days);
}

}  // namespace

int CountLeapDays(const Date& start, const Date& end) {
  int count = 0;
  for (year y = start.year(); y <= end.year(); ++y) {
    const Date leapDay = y / February / 29;
    if (leapDay.ok() && start <= leapDay && leapDay <= end) ++count;
  }
  return count;
}

int CalendarTermDays(const Date& start, const Date& end, bool countLeapDay) {
  const int days = DaysBetween(start, end);
  return countLeapDay ? days : days - CountLeapDays(start, end);
}

int MonthTermDays(year_month begin, int count, bool countLeapDay) {
  return CalendarTermDays(begin / 1, (begin + months{count}) / 1, countLeapDay);
}

double MonthsInDays(year_month start, double count, bool countLeapDay) {
  if (!std::isfinite(count)) return count;
  // Every run of twelve months holds each month once, so whole years need no walk.
  const double years = std::floor(count / kMonthsOfYear);
  double days = years * MonthTermDays(start.year() / January, kMonthsOfYear, countLeapDay);
  const int rest = static_cast<int>(std::fmod(count, kMonthsOfYear));
  for (int k = 0; k < rest; ++k) days += DaysInMonth(MonthInSameYear(start, k), countLeapDay);
  return days;
}

double MonthPeriodDays(year_month start, double periods, double monthsPerPeriod,
                       bool countLeapDay) {
  if (!(periods >= 1 && monthsPerPeriod >= 1)) return 0;
  return MonthsInDays(start, std::floor(periods) * std::floor(monthsPerPeriod), countLeapDay);
}

year_month MonthInSameYear(year_month month, int count) {
  const int index = static_cast<int>(static_cast<unsigned>(month.month())) - 1 + count;
  return month.year() / std::chrono::month{static_cast<unsigned>(index % kMonthsOfYear) + 1};
}

}  // namespace corvane
