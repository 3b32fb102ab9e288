#include "formulas/CheckApy.h"

#include <gtest/gtest.h>

#include <limits>

#include "account/SessionRecord.h"

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
    for (int thousandths : {-51, -50, 50, 51}) {
      const double disclosed = (hundredths * 10 + thousandths) / 1000.0;
      const bool within = std::abs(thousandths) == 50;
      ASSERT_EQ(Verdict(disclosed, computed), within ? "OK" : "APY VIOLATION")
          << disclosed << " and " << computed;
    }
  }
  EXPECT_EQ(Verdict(987654321.05, 987654321.00), "OK");
  EXPECT_EQ(Verdict(5, std::numeric_limits<double>::quiet_NaN()), "APY VIOLATION");
}

}  // namespace
}  // namespace corvane
