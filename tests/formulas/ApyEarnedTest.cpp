#include "formulas/ApyEarned.h"

#include "CaseTable.h"

namespace corvane {
namespace {

TEST(ApyEarned, BothFormulasAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("apy_earned.csv")) {
    const double interest = row.Number("interest");
    const double balance = row.Number("balance");
    const double days = row.Number("days");
    const double year = row.Number("year");
    const double near = 1e-10 * (1 + row.Number("apy"));
    EXPECT_NEAR(ApyEarned(interest, balance, days, year), row.Number("apy"), near) << row.line;
    EXPECT_NEAR(ApyEarnedAdditional(interest, balance, days, year, row.Number("period")),
                row.Number("additional"), near)
        << row.line;
  }
}

}  // namespace
}  // namespace corvane
