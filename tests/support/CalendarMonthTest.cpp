#include "support/CalendarMonth.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(CalendarMonth, EveryDayStandsInItsCellAndNothingElseDoes) {
  const struct {
    const char* month;
    int firstCell, days;               // cells count row by row from 0
  } cases[] = {{"03-15-2026", 0, 31},  // starts on a Sunday
               {"08-01-2026", 6, 31},  // starts on a Saturday, ends in the sixth row
               {"02-10-2015", 0, 28},
               {"02-29-2024", 4, 29}};
  for (const auto& c : cases) {
    const Date month = *ParseDate(c.month);
    for (int cell = 0; cell < 49; ++cell) {
      const int number = cell - c.firstCell + 1;
      const auto day = DayInCell(month, {cell % 7, cell / 7});
      ASSERT_EQ(day.has_value(), number >= 1 && number <= c.days) << c.month << ", cell " << cell;
      if (!day) continue;
      EXPECT_EQ(static_cast<unsigned>(day->day()), static_cast<unsigned>(number)) << c.month;
      EXPECT_EQ(CellOf(*day).row * 7 + CellOf(*day).column, cell) << c.month;
    }
    for (int beside : {-1, 7}) EXPECT_FALSE(DayInCell(month, {beside, 2})) << c.month;
  }
}

}  // namespace
}  // namespace corvane
