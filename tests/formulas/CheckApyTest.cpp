#include "formulas/CheckApy.h"

#include <gtest/gtest.h>

#include <limits>

#include "shell/SessionRecord.h"

namespace corvane {
namespace {

std::string Verdict(double disclosed, double computed) {
  SessionRecord session;
  CheckApy(session, disclosed, computed);
  return session.ApyVerdict;
}

TEST(CheckApy, ExactlyOneTwentiethIsAlwaysWithinTheTolerance) {
  for (int hundredths = -200; hundredths <= 20000; ++hundredths) {
    const double computed = hundredths / 100.0;
    for (int difference : {-5, 5}) {
      const double disclosed = (hundredths + difference) / 100.0;
      ASSERT_EQ(Verdict(disclosed, computed), "OK") << disclosed << " and " << computed;
    }
    for (int difference : {-51, 51}) {
      const double disclosed = (hundredths * 10 + difference) / 1000.0;
      ASSERT_EQ(Verdict(disclosed, computed), "APY VIOLATION") << disclosed << " and " << computed;
    }
  }
}

TEST(CheckApy, LargeFiguresAndNoFigures) {
  EXPECT_EQ(Verdict(987654321.05, 987654321.00), "OK");
  EXPECT_EQ(Verdict(987654321.06, 987654321.00), "APY VIOLATION");
  EXPECT_EQ(Verdict(5, std::numeric_limits<double>::quiet_NaN()), "APY VIOLATION");
}

}  // namespace
}  // namespace corvane
