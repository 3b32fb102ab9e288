#include "account/SlipNotice.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(SlipNotice, AFactorOfNoYearIsAskedAfter) {
  for (const char* factor : {"1/360", "1/365", " 1/366 ", "", "1/", "365", "1/3.5"}) {
    EXPECT_EQ(FactorNotice(factor), std::nullopt) << factor;
  }
  for (const char* factor : {"1/36", "1/3", "1/356", "1/364", "1/3655"}) {
    EXPECT_EQ(FactorNotice(factor).value_or("").find(std::string(factor) + ": is this meant?"), 0U);
  }
}

TEST(SlipNotice, ANumberAHundredTimesOrAHundredthOfTheOneBeforeIsAskedAfter) {
  const auto notice = [](const char* text, const char* before) {
    return JumpNotice("Rate", text, before).value_or("");
  };
  EXPECT_EQ(notice("525", "5.25"), "Rate 525: is this meant? It is 100 times the 5.25 before.");
  EXPECT_EQ(notice("525", "5.50"), "Rate 525: is this meant? It is 95 times the 5.50 before.");
  EXPECT_EQ(notice("-.05", "5"), "Rate -.05: is this meant? It is 1/100 of the 5 before.");
  const std::pair<const char*, const char*> usual[] = {
      {"5", "5"}, {"245", "5"}, {"5", "245"}, {"0", "500"}, {"500", "0"}, {"500", ""}, {"x", "5"}};
  for (const auto& [text, before] : usual) EXPECT_EQ(notice(text, before), "");
  TierTable table{3, {}};
  for (const auto& [tier, rate] : {std::pair{1, "5.25"}, {2, "550"}, {3, "5.75"}}) {
    table.Of(tier).rate = rate;
  }
  EXPECT_EQ(TierRateNotice(table, 1), std::nullopt);
  EXPECT_EQ(TierRateNotice(table, 2),
            "Rate of Tier 2 550: is this meant? It is 105 times the 5.25 before.");
}

}  // namespace
}  // namespace corvane
