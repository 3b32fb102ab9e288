#include "statement/StatementCalculation.h"

#include <gtest/gtest.h>

#include "statement/BalanceBasis.h"
#include "statement/EntryExamples.h"

namespace corvane {
namespace {

TEST(StatementCalculation, Basis3TakesTheCollectedColumnAndRoundsTheInterest) {
  EntryExample example;
  auto& [session, entry] = example;
  session.CountLeapDay = true;
  ChooseLedgerEqualsCollected(session, entry, false);
  ChooseLedgerAdb(session, entry, false);
  entry.txtColDays.text = "30";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter an ADB Collected balance > 0 to continue @ txtADBCollectedBalance");
  entry.txtADBCollectedBalance.text = "1000";
  entry.txtIntAmt.text = "5.245";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal), "");
  EXPECT_EQ(session.InterestAmount, 5.24) << "an exact half goes to the even cent";
  // 100 x (1.00524 ^ (366 / 30) - 1) = 6.5837...
  EXPECT_EQ(session.ComputedApy, 6.58);
}

TEST(StatementCalculation, RefusesInItsOrder) {
  EntryExample example;
  auto& [session, entry] = example;
  // Each row sets a field; the period comes before the other fields, their checks before the
  // results'.
  struct Row {
    StatementField StatementEntry::*field;
    const char *text, *told;
  };
  entry.txtMinADB.text = "x";
  entry.txtIntAmt.text = "";
  entry.txtADBLedgerBalance.text = "0";
  const Row rows[] = {
      {&StatementEntry::txtLedgerdays, "0", "Starting Date is invalid, Please correct"},
      {&StatementEntry::txtLedgerdays, "1", "Please enter a valid Minimum ADB amount or Zero"},
      {&StatementEntry::txtMinADB, "0", "Please enter an ADB Ledger balance > 0 to continue"},
      {&StatementEntry::txtADBLedgerBalance, "0.01",
       "Please enter a valid interest for ADB Method"},
      {&StatementEntry::txtIntAmt, "99999999",
       "The entries give a result that cannot be computed. Please correct them."},
  };
  for (const Row& row : rows) {
    (entry.*row.field).text = row.text;
    const auto refusal = CalculateStatement(session, entry).refusal;
    EXPECT_EQ(refusal ? refusal->text : "", row.told);
    EXPECT_EQ(session.ApyVerdict, "") << row.told;
  }
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            std::string(rows[4].told) + " @ txtIntAmt");
  entry.optADB = false;
  entry.optDailyBal = true;
  entry.txtIntAmt.text = "-1";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter a valid interest in for Daily Balance Method @ txtIntAmt");
}

}  // namespace
}  // namespace corvane
