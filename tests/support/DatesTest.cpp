#include "support/Dates.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(Dates, OnlyAFilledMaskWithARealDayFrom1901IsADate) {
  for (const char* text : {"01-01-1901", "02-29-2024", "12-31-9999", "02-29-2000"}) {
    const auto date = ParseDate(text);
    ASSERT_TRUE(date.has_value()) << text;
    EXPECT_EQ(FormatDate(*date), text);
  }
  for (const char* text : {"__-__-____", "", "1_-01-2023", "02-29-2023", "13-01-2023", "00-10-2023",
                           "12-31-1900", "01/01-2023", "01-01/2023", "01-01-202_"}) {
    EXPECT_FALSE(ParseDate(text).has_value()) << text;
  }
}

TEST(Dates, MonthStepsKeepTheDayOrTakeTheLastOne) {
  const auto day = [](const char* text) { return *ParseDate(text); };
  EXPECT_EQ(FormatDate(AddMonths(day("01-31-2024"), 1)), "02-29-2024");
  EXPECT_EQ(FormatDate(AddMonths(day("03-15-2023"), -12)), "03-15-2022");
  EXPECT_EQ(FormatDate(AddDays(day("12-31-2023"), 1)), "01-01-2024");
  EXPECT_EQ(DaysBetween(day("01-01-2025"), day("01-01-2024")), -366);
}

}  // namespace
}  // namespace corvane
