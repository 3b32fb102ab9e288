#include "support/CalendarMonth.h"

#include <gtest/gtest.h>

#include "support/FormCenter.h"

namespace corvane {
namespace {

TEST(CalendarMonth, EveryDayStandsInItsCellAndNothingElseDoes) {
  const struct {
    const char* month;
    int offset, days, rows;
  } cases[] = {
      {"03-15-2026", 0, 31, 5},  // starts on a Sunday
      {"08-01-2026", 6, 31, 6},  // starts on a Saturday: the last two days fall in the sixth row
      {"02-10-2015", 0, 28, 4}, {"02-29-2024", 4, 29, 5}, {"02-01-1901", 5, 28, 5},
  };
  for (const auto& c : cases) {
    const Date month = *ParseDate(c.month);
    EXPECT_EQ(MonthOffset(month), c.offset) << c.month;
    EXPECT_EQ(DaysOfMonth(month), c.days) << c.month;
    int found = 0;
    for (int row = 0; row < 7; ++row) {
      for (int column = -1; column < 8; ++column) {
        const auto day = DayInCell(month, {column, row});
        if (!day) continue;
        EXPECT_EQ(static_cast<unsigned>(day->day()), static_cast<unsigned>(++found)) << c.month;
        EXPECT_EQ(CellOf(*day).column, column) << c.month;
        EXPECT_EQ(CellOf(*day).row, row) << c.month;
        EXPECT_LT(row, c.rows) << c.month;
      }
    }
    EXPECT_EQ(found, c.days) << c.month;
  }
}

TEST(FormCenter, MeasuresFromTheScreensCornerUnlessTheWindowDoesNotFit) {
  const struct {
    Extent area;
    Position corner;
    Extent window;
    Position expected;
  } cases[] = {
      {{19200, 11520}, {0, 0}, {6000, 4000}, {6600, 3760}},
      {{1024, 738}, {0, 30}, {520, 440}, {252, 149}},  // a bar docked at the top
      {{1024, 738}, {0, 30}, {1024, 738}, {0, 0}},
      {{1024, 738}, {0, 30}, {1025, 400}, {0, 30}},
      {{1024, 738}, {40, 0}, {600, 739}, {40, 0}},
  };
  for (const auto& c : cases) {
    const Position place = CenterPosition(c.area, c.corner, c.window);
    EXPECT_EQ(place.left, c.expected.left) << c.window.width << " on " << c.area.width;
    EXPECT_EQ(place.top, c.expected.top) << c.window.height << " on " << c.area.height;
  }
}

}  // namespace
}  // namespace corvane
