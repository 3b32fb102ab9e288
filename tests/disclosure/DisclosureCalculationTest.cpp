#include "disclosure/DisclosureTable.h"

namespace corvane {
namespace {

TEST(DisclosureCalculation, TheFactorOfASteppedAccountIsThatOfItsNewestPeriod) {
  DisclosurePerson person;
  person.Begin();
  for (const auto& [name, text] : {std::pair{"optStepRate", ""},
                                   {"optICNone", ""},
                                   {"txtTierPerNum", "2"},
                                   {"txtDiscAPY", "5"},
                                   {"txtBal", "1000"},
                                   {"txtIntRateA", "5"},
                                   {"txtTerm", "91"},
                                   {"txtDailyRateFactor", "1/365"},
                                   {"Next", ""},
                                   {"txtIntRateA", "6"},
                                   {"txtTerm", "92"},
                                   {"txtDailyRateFactor", "1/360"},
                                   {"Next", ""}}) {
    ASSERT_TRUE(person.Put(name, text)) << name;
  }
  ASSERT_EQ(person.Noted(), "none");
  EXPECT_EQ(person.Check().result->factorDays, 360);
}

}  // namespace
}  // namespace corvane
