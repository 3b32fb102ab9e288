#include "formulas/CheckApy.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace corvane {
namespace {

TEST(CheckApy, ExactlyOneTwentiethIsAlwaysWithinTheTolerance) {
  for (int hundredths = -200; hundredths <= 20000; ++hundredths) {
    const double computed = hundredths / 100.0;
    for (int thousandths : {-51, -50, 50, 51}) {
      const double disclosed = (hundredths * 10 + thousandths) / 1000.0;
      const bool within = std::abs(thousandths) == 50;
      ASSERT_EQ(CheckApy(disclosed, computed), within ? Verdict::Ok : Verdict::Violation)
          << disclosed << " and " << computed;
    }
  }
  EXPECT_EQ(CheckApy(987654321.05, 987654321.00), Verdict::Ok);
  EXPECT_EQ(CheckApy(5, std::numeric_limits<double>::quiet_NaN()), Verdict::Violation);
}

}  // namespace
}  // namespace corvane
