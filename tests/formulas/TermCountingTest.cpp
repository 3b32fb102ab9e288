#include "formulas/TermCounting.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"
#include "support/Clock.h"

namespace corvane {
namespace {

class TermCounting : public ::testing::Test {
 protected:
  void SetUp() override { SetToday(ParseDate("02-10-2024")); }
  void TearDown() override { SetToday(std::nullopt); }
};

TEST_F(TermCounting, WhatIsNoYearOrMonthStandsForTodays) {
  for (double year : {2000.0, 2024.0, 50.0, -4.0, 10000.0, 2023.5}) {
    EXPECT_TRUE(dhIsLeapYear(year)) << year;
  }
  for (double year : {1900.0, 2100.0, 2023.0}) EXPECT_FALSE(dhIsLeapYear(year)) << year;
  EXPECT_EQ(DaysInMonth(2, 2024, false), 28);
  EXPECT_EQ(DaysInMonth(2, 2023, true), 28);
  EXPECT_EQ(DaysInMonth(12, 9999, true), 31);
  for (int month : {0, 13}) EXPECT_EQ(DaysInMonth(month, 2023, true), 29) << month;
}

TEST_F(TermCounting, MonthPeriodsKeepTheBeginningYearsLengths) {
  const struct {
    int startMonth, year;  // also February 2025 has its length of 2024
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
    EXPECT_EQ(CountMonthPeriodDays(c.startMonth, c.year, c.periods, c.monthsEach, c.countLeapDay),
              c.expected)
        << c.startMonth << "/" << c.year << ", " << c.periods << " x " << c.monthsEach;
  }
}

TEST_F(TermCounting, CalendarTermsLeaveOutLeapDaysBothEndsIncluded) {
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
  EXPECT_EQ(DateSortKey(*ParseDate("12-31-2024")), 202412366);
  EXPECT_EQ(MonthTermDays(12, 2023, 3, true), 31 + 31 + 29) << "by the real calendar";
  EXPECT_EQ(MonthTermDays(1, 9999, 1200, true), 36525) << "terms may end after year 9999";
}

}  // namespace
}  // namespace corvane
