#include "statement/DayNotice.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(DayNotice, ADayIsComparedWithTheLastOneThatHoldsAnAmount) {
  DailyBalances daily;
  daily.start = *ParseDate("10-01-2026");
  daily.days = {{"1000.00", "5"}, {"", ""}, {"0.00", ""}, {"100000.00", "500"}, {"x", ""}};
  for (std::size_t usual : {0U, 1U, 2U, 4U}) EXPECT_EQ(DayNotice(daily, usual), std::nullopt);
  EXPECT_EQ(DayNotice(daily, 3),
            "Balance of Oct 4 100000.00: is this meant? It is 100 times the 1000.00 before.");
  daily.days[3].balance = "1000.00";
  EXPECT_EQ(DayNotice(daily, 3), std::nullopt);  // the rate is not typed
  daily.account.kind = AccountKind::Stepped;
  EXPECT_EQ(DayNotice(daily, 3), "Rate of Oct 4 500: is this meant? It is 100 times the 5 before.");
}

}  // namespace
}  // namespace corvane
