#include "formulas/TermCounting.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(TermCounting, MonthPeriodsKeepTheBeginningYearsLengths) {
  const struct {
    unsigned startMonth;
    int year;  // also February 2025 has its length of 2024
    double periods, monthsEach;
    bool countLeapDay;
    double expected;
  } cases[] = {{1, 2024, 12, 1, true, 366},
               {1, 2024, 12, 1, false, 365},
               {12, 2023, 1, 3, true, 31 + 31 + 28},
               {12, 2024, 1, 3, true, 31 + 31 + 29},
               {11, 2023, 5, 3, true, 365 + 30 + 31 + 31},
               {4, 2023, 0.5, 3, true, 0},
               {4, 2023, -1, 3, true, 0},
               {4, 2023, 2.5, 1, true, 61},
               {1, 2023, 1e12, 12, true, 365e12}};
  for (const auto& c : cases) {
    const auto start = std::chrono::year{c.year} / std::chrono::month{c.startMonth};
    EXPECT_EQ(MonthPeriodDays(start, c.periods, c.monthsEach, c.countLeapDay), c.expected)
        << c.startMonth << "/" << c.year << ", " << c.periods << " x " << c.monthsEach;
  }
}

TEST(TermCounting, CalendarTermsLeaveOutLeapDaysBothEndsIncluded) {
  const struct {
    const char *start, *end;
    int leapDays, days;
  } cases[] = {
      {"01-01-2024", "01-01-2025", 1, 366},  {"02-29-2024", "02-29-2024", 1, 0},
      {"03-01-2024", "02-28-2028", 0, 1459}, {"02-28-2024", "02-29-2024", 1, 1},
      {"02-29-2024", "02-29-2028", 2, 1461}, {"01-01-1901", "12-31-2100", 49, 73048},
      {"03-01-2024", "02-01-2024", 0, -29},
  };
  for (const auto& c : cases) {
    const Date start = *ParseDate(c.start);
    const Date end = *ParseDate(c.end);
    EXPECT_EQ(CountLeapDays(start, end), c.leapDays) << c.start << " to " << c.end;
    EXPECT_EQ(CalendarTermDays(start, end, true), c.days) << c.start << " to " << c.end;
    EXPECT_EQ(CalendarTermDays(start, end, false), c.days - c.leapDays) << c.start;
  }
  using namespace std::chrono;
  EXPECT_EQ(MonthTermDays(2023y / December, 3, true), 31 + 31 + 29) << "by the real calendar";
  EXPECT_EQ(MonthTermDays(9999y / January, 1200, true), 36525) << "terms may end after year 9999";
}

}  // namespace
}  // namespace corvane
