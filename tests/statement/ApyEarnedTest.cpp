#include "statement/ApyEarned.h"

#include <gtest/gtest.h>

#include "statement/AverageDailyBalance.h"
#include "statement/ReferenceTable.h"
#include "support/NumberText.h"

namespace corvane {
namespace {

double Cell(const ReferenceRow& row, const char* heading) {
  return NumericValue(row.at(heading));
}

TEST(ApyEarned, BothFormulasAgreeWithTheReference) {
  for (const ReferenceRow& row : ReadReferenceTable("apy_earned.csv")) {
    const double interest = Cell(row, "interest");
    const double balance = Cell(row, "balance");
    const double days = Cell(row, "days");
    const double year = Cell(row, "year");
    const std::string input = testing::PrintToString(row);
    const double near = 1e-12 * (1 + Cell(row, "apy"));
    EXPECT_NEAR(ApyEarned(interest, balance, days, year), Cell(row, "apy"), 100 * near) << input;
    EXPECT_NEAR(ApyEarnedAdditional(interest, balance, days, year, Cell(row, "period")),
                Cell(row, "additional"), 100 * near)
        << input;
  }
}

TEST(ApyEarned, TheRegulationsOwnFigures) {
  // Appendix A, Part II.A: $5.25 on an average of $1,000 over 30 days; the average comes from 15
  // days at $1,500 and 15 at $500.
  std::vector<double> balances(15, 1500);
  balances.insert(balances.end(), 15, 500);
  EXPECT_EQ(AverageDailyBalance(balances), 1000.00);
  EXPECT_EQ(FormatFixed2(ApyEarned(5.25, 1000, 30, 365)), "6.58");
}

TEST(ApyEarned, TenThousandEarningTwelveFiftyInThirtyDays) {
  EXPECT_NEAR(ApyEarned(12.50, 10000, 30, 365), 1.5315, 5e-5);
  EXPECT_NEAR(ApyEarnedAdditional(12.50, 10000, 30, 365, 91), 1.5295, 5e-5);
}

}  // namespace
}  // namespace corvane
