#include "formulas/RoundValue.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"

namespace corvane {
namespace {

TEST(RoundValue, HalvesGoToTheEvenNeighbourWhateverTheBinaryNoise) {
  const struct {
    double value;
    std::int16_t mode;  // 2 rounds to cents, 0 to fifteen decimals, any other to whole numbers
    double expected;
  } cases[] = {{0.125, 2, 0.12},
               {0.375, 2, 0.38},
               {12.3456, 2, 12.35},
               {2.675, 2, 2.68},
               {-8.345, 2, -8.34},
               {2.6750001, 2, 2.68},
               {8.3450001, 2, 8.35},
               {100000.005, 2, 100000.00},
               {2.5, 1, 2},
               {-3.5, 7, -4},
               {0.05 / 365, 0, 0.00013698630137},
               {4.123456789012345, 0, 4.123456789012345},
               {1234567.8901234567, 0, 1234567.8901234567}};
  SessionRecord session;
  session.RoundingDigits = 15;
  for (const auto& c : cases) {
    double value = c.value;
    EXPECT_EQ(RoundValue(session, value, c.mode), c.expected) << c.value;
    EXPECT_EQ(value, c.expected) << "the argument takes the rounded value";
  }
}

}  // namespace
}  // namespace corvane
