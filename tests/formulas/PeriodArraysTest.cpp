#include "formulas/PeriodArrays.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"

namespace corvane {
namespace {

struct Case {
  bool tierB;
  std::int16_t tiers;
  int rows;
};

TEST(PeriodArrays, OnlyMethodBWithMoreThanFiveTiersNeedsTwentyRows) {
  const Case cases[] = {{true, 5, 10}, {true, 6, 20}, {true, 10, 20}, {false, 10, 10}};
  SessionRecord session;
  for (const Case& c : cases) {
    session.AcctTierB = c.tierB;
    session.TierCountSel = c.tiers;
    SizePeriodArrays(session);
    EXPECT_EQ(session.PerPeriodNo.Last(), c.rows) << c.tiers;
    EXPECT_EQ(session.PerTerm.Last(), c.rows) << c.tiers;
    EXPECT_EQ(session.PerDailyRateFactor.Last(), c.rows) << c.tiers;
    EXPECT_EQ(session.PerTerm.First(), 1);
    EXPECT_EQ(session.PerTerm.At(1), 0) << "what the tables held is discarded";
    session.PerTerm.Set(1, 365);
  }
}

}  // namespace
}  // namespace corvane
