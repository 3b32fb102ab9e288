#include "support/Rounding.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(Rounding, HalvesGoToTheEvenNeighbourWhateverTheBinaryNoise) {
  const struct {
    double value;
    int decimals;
    double expected;
  } cases[] = {{0.125, 2, 0.12},
               {0.375, 2, 0.38},
               {12.3456, 2, 12.35},
               {2.675, 2, 2.68},
               {-8.345, 2, -8.34},
               {2.6750001, 2, 2.68},
               {8.3450001, 2, 8.35},
               {100000.005, 2, 100000.00},
               // $9,631,972,068.75 at 3.65 % for 8 days.
               {9631972068.75 * (0.0365 / 365) * 8, 2, 7705577.66},
               {2.5, 0, 2},
               {-3.5, 0, -4},
               {0.05 / 365, 15, 0.00013698630137},
               {4.123456789012345, 15, 4.123456789012345},
               {1234567.8901234567, 15, 1234567.8901234567}};
  for (const auto& c : cases)
    EXPECT_EQ(RoundToDecimals(c.value, c.decimals), c.expected) << c.value;
}

}  // namespace
}  // namespace corvane
