#include "formulas/RoundValue.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"

namespace corvane {
namespace {

struct Case {
  double value;
  std::int16_t mode;
  double expected;
};

TEST(RoundValue, HalvesGoToTheEvenNeighbourWhateverTheBinaryNoise) {
  const Case cases[] = {
      {0.125, 2, 0.12},     {0.375, 2, 0.38},
      {0.625, 2, 0.62},     {12.3456, 2, 12.35},
      {2.675, 2, 2.68},     {8.345, 2, 8.34},
      {1.005, 2, 1.00},     {-2.675, 2, -2.68},
      {-8.345, 2, -8.34},   {2.5, 1, 2},
      {3.5, 7, 4},          {-2.5, 1, -2},
      {0.3 - 0.1, 2, 0.2},  {100000.005, 2, 100000.00},
      {2.6750001, 2, 2.68}, {8.3450001, 2, 8.35},
  };
  SessionRecord session;
  session.RoundingDigits = 15;
  for (const Case& c : cases) {
    double value = c.value;
    EXPECT_DOUBLE_EQ(RoundValue(session, value, c.mode), c.expected) << c.value;
    EXPECT_DOUBLE_EQ(value, c.expected) << "the argument takes the rounded value";
  }
}

TEST(RoundValue, ModeZeroKeepsFifteenDecimals) {
  SessionRecord session;
  session.RoundingDigits = 15;
  double rate = 0.05 / 365;
  EXPECT_EQ(RoundValue(session, rate, 0), 0.00013698630137);
  double interest = 4.123456789012345;
  EXPECT_EQ(RoundValue(session, interest, 0), 4.123456789012345);
  double large = 1234567.8901234567;
  EXPECT_EQ(RoundValue(session, large, 0), 1234567.8901234567);
}

}  // namespace
}  // namespace corvane
