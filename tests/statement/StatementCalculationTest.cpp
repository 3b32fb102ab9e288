#include "statement/StatementCalculation.h"

#include <gtest/gtest.h>

#include "statement/BalanceBasis.h"
#include "statement/EntryExamples.h"

namespace corvane {
namespace {

TEST(StatementCalculation, ComputesTheApyOfTheBasisAndItsVerdict) {
  EntryExample example;
  auto& [session, entry] = example;
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal), "");
  EXPECT_EQ(session.ComputedApy, 1.53);
  EXPECT_EQ(session.ApyVerdict, "OK");
  entry.txtDClApy.text = "1.59";
  CalculateStatement(session, entry);
  EXPECT_EQ(session.ApyVerdict, "APY VIOLATION");

  session.AdditionalApy = true;
  session.CompoundingPeriodDays = 91;
  entry.txtIntAmt.text = "120.00";
  CalculateStatement(session, entry);
  // 100 x ((1 + 120 / 10000 / 30 x 91) ^ (365 / 91) - 1) = 15.41978...
  EXPECT_EQ(session.ComputedApy, 15.42);
  session.AdditionalApy = false;
  session.CountLeapDay = true;
  CalculateStatement(session, entry);
  // 100 x (1.012 ^ (366 / 30) - 1) = 15.66507...
  EXPECT_EQ(session.ComputedApy, 15.67);
}

TEST(StatementCalculation, Basis3TakesTheCollectedColumnAndRoundsTheInterest) {
  EntryExample example;
  auto& [session, entry] = example;
  ChooseLedgerEqualsCollected(session, entry, false);
  ChooseLedgerAdb(session, entry, false);
  entry.txtColDays.text = "30";
  entry.txtADBCollectedBalance.text = "1000";
  entry.txtIntAmt.text = "5.245";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal), "");
  EXPECT_EQ(session.InterestAmount, 5.24) << "an exact half goes to the even cent";
  EXPECT_EQ(session.BalanceBasisCode, 3);
  EXPECT_EQ(session.ComputedApy, 6.57);
}

TEST(StatementCalculation, RefusesInItsOrder) {
  EntryExample example;
  auto& [session, entry] = example;
  entry.txtMinADB.text = "x";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter a valid Minimum ADB amount or Zero @ txtMinADB");
  entry.txtLedgerdays.text = "0";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Starting Date is invalid, Please correct @ txtDateStart");
  example.Minimums("0", "0");
  entry.txtLedgerdays.text = "30";
  entry.txtADBLedgerBalance.text = "0";
  entry.txtIntAmt.text = "";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter an ADB Ledger balance > 0 to continue @ txtADBLedgerBalance");
  entry.txtADBLedgerBalance.text = "1000";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter a valid interest for ADB Method @ txtIntAmt");
  entry.optADB = false;
  entry.optDailyBal = true;
  entry.txtIntAmt.text = "-1";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter a valid interest in for Daily Balance Method @ txtIntAmt");
  EXPECT_EQ(session.ComputedApy, 0);
  entry.txtLedgerdays.text = "1";
  entry.txtADBLedgerBalance.text = "0.01";
  entry.txtIntAmt.text = "99999999";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "The entries give a result that cannot be computed. Please correct them. @ txtIntAmt");
  ChooseLedgerEqualsCollected(session, entry, false);
  ChooseLedgerAdb(session, entry, false);
  entry.txtColDays.text = "30";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "Please enter an ADB Collected balance > 0 to continue @ txtADBCollectedBalance");
  EXPECT_EQ(session.ApyVerdict, "");
}

TEST(StatementCalculation, ASteppedAccountWithAMinimumAdbAloneIsRefused) {
  EntryExample example;
  example.Stepped();
  example.session.AdditionalApy = true;
  example.session.CompoundingPeriodDays = 91;
  example.entry.optADB = false;
  example.entry.optDailyBal = true;
  example.Minimums("100", "0");
  EXPECT_EQ(Told(CalculateStatement(example.session, example.entry).refusal),
            "For Variable Rate Accounts\n"
            "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
            "Please try again @ txtMinADB");
  EXPECT_EQ(example.session.ComputedApy, 0);
}

TEST(StatementCalculation, BothMinimumsBringANoticeAndAResult) {
  EntryExample example;
  example.Minimums("100", "50");
  const CheckOutcome outcome = CalculateStatement(example.session, example.entry);
  EXPECT_TRUE(outcome.notice);
  EXPECT_FALSE(outcome.refusal);
  EXPECT_EQ(example.session.ComputedApy, 1.53);
}

}  // namespace
}  // namespace corvane
