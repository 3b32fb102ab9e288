#include "disclosure/EntryContext.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(EntryContext, LeavesOutWhatIsNotKnownOrAsked) {
  const struct {
    AccountHeader header;
    Unit compounding;
    const char* interval;
    Unit withdrawal;
    const char* text;
  } cases[] = {
      {{"First Bank", "CD", "", ""},
       Unit::Days,
       "30",
       Unit::Months,
       "First Bank · CD · every 30 days · 365 days · 29 Feb not counted · withdrawals by months"},
      {{" ", "CD ", "", ""}, Unit::Years, "1", Unit::None, "CD · every 1 year · no withdrawals"},
      {{},
       Unit::None,
       "",
       Unit::None,
       "no compounding · 365 days · 29 Feb not counted · no withdrawals"},
  };
  for (const auto& expected : cases) {
    DisclosureSetup setup;
    setup.compounding = expected.compounding;
    setup.txtDailyCompounding.text = expected.interval;
    setup.withdrawal = expected.withdrawal;
    EXPECT_EQ(ContextOf(expected.header, setup), expected.text);
  }
}

TEST(EntryContext, WarnsOfABalanceOutsideItsTierByMethodA) {
  DisclosureCheck check;
  check.setup.kind = AccountKind::TierA;
  check.tiers = {3, {{{"5.25", "2500"}, {"5.5", "15000"}, {"5.75", ""}}}};
  const struct {
    int tier;
    const char* balance;
    bool outside;
  } cases[] = {{1, "2500", false},    {1, "2500.01", true},   {2, "2500", true},
               {2, "2500.01", false}, {2, "15000", false},    {2, "15000.01", true},
               {3, "15000", true},    {3, "15000.01", false}, {2, "", false}};
  for (const auto& [tier, balance, outside] : cases) {
    check.completed = tier - 1;
    const bool warns = TierContextOf(check, {.text = balance}).balanceOutside;
    EXPECT_EQ(warns, outside) << "tier " << tier << ": " << balance;
  }
  check.setup.kind = AccountKind::TierB;
  EXPECT_FALSE(TierContextOf(check, {.text = "1"}).balanceOutside);
}

}  // namespace
}  // namespace corvane
