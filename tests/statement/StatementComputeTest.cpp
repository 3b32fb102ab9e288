#include "statement/StatementCompute.h"

#include <gtest/gtest.h>

#include "statement/DailyHandBack.h"
#include "statement/EntryExamples.h"
#include "statement/InterestMethod.h"
#include "statement/StatementCalculation.h"
#include "statement/StatementReset.h"

namespace corvane {
namespace {

using enum BalanceColumn;

/// A person at the two windows; the account pays 0.01 % a day.
class StatementCompute : public ::testing::Test, protected EntryExample {
 protected:
  StatementCompute() { entry.txtIntRate.text = "3.65"; }

  void Open(BalanceColumn column) {
    EXPECT_EQ(Told(StartCompute(session, entry, column).refusal), "");
    EXPECT_EQ(Told(LoadDailyBalances(session, entry.txtIntRate.Value(), daily)), "");
  }
  void Type(const std::string& balance) {
    for (std::size_t day = 0; day < daily.days.size(); ++day) TakeDay(daily, day, {balance, ""});
  }
  /// What the entry window then shows for average and interest.
  std::string Compute(BalanceColumn column, const char* balance) {
    Open(column);
    Type(balance);
    EXPECT_EQ(Told(ComputeAdb(session, daily)), "");
    FinishCompute(session, entry, column);
    return AdbField(entry, column).text + " " + entry.txtIntAmt.text;
  }

  DailyBalances daily;
};

TEST_F(StatementCompute, TheMinimumsDecideWhatIsHandedBack) {
  Minimums("100", "50");
  EXPECT_EQ(Compute(Ledger, "1000"), "1000.00 3.00");
  ChooseMethod(session, entry, false);
  EXPECT_EQ(Compute(Ledger, "1000"), "1000.00 0.00") << "the daily method withholds it";
  Minimums("0", "500");
  EXPECT_EQ(Compute(Ledger, "499.99"), "499.99 ") << "below a sole daily minimum it is typed";
}

TEST_F(StatementCompute, WithBasis2TheLedgerLeavesTheCollectedInterestAlone) {
  ChooseLedgerEqualsCollected(session, entry, false);
  entry.txtLedgerdays.text = "30";
  EXPECT_EQ(Compute(Collected, "1000"), "1000.00 3.00");
  EXPECT_EQ(session.LedgerDayRates.Last(), 0);
  EXPECT_EQ(Compute(Ledger, "2000"), "2000.00 3.00");
  EXPECT_NEAR(session.InterestAmount, 3, 1e-12);
  EXPECT_EQ(session.LedgerDayBalances.At(30), 2000);
  EXPECT_EQ(session.CollectedDayBalances.At(30), 1000) << "each column keeps its days";
  EXPECT_EQ(session.CollectedDayRates.At(30), 3.65);
}

TEST_F(StatementCompute, ACancelLeavesEverythingAsItWas) {
  Compute(Ledger, "1000");
  entry.txtIntAmt.text = "7.77";
  ChooseLedgerEqualsCollected(session, entry, false);
  entry.txtLedgerdays.text = "31";
  const BeforeCompute before = Remember(session, entry);
  Open(Collected);
  Type("5");
  StoreDays(session, daily);
  CancelCompute(session, entry, before);
  EXPECT_TRUE(session.ComputeFlag && session.LedgerBasis);
  EXPECT_EQ(entry.txtIntAmt.text, "7.77");
  EXPECT_EQ(session.StatementDays, 30);
  EXPECT_EQ(session.CollectedDayBalances.Last(), 0);
}

TEST_F(StatementCompute, TheStoredDaysComeBackUntilLengthOrAccountChange) {
  const auto reopened = [this](const char* days) {
    entry.txtLedgerdays.text = days;
    Open(Ledger);
    return TextsOfDay(daily, 0).balance;
  };
  Compute(Ledger, "1000");
  EXPECT_EQ(reopened("30"), "1000.00");
  EXPECT_EQ(reopened("29"), "");
  session.DailyBalReset = true;
  EXPECT_EQ(reopened("30"), "") << "a new account starts empty";
  EXPECT_FALSE(session.DailyBalReset || session.DetailData);
}

TEST_F(StatementCompute, NothingOfAnAccountIsLeftForTheNext) {
  Compute(Ledger, "1000");
  ResetStatement(session);
  EXPECT_FALSE(session.DetailData);
  EXPECT_EQ(session.LedgerDayBalances.Last(), 0);
  InitStatementEntry(session, entry, false);
  EXPECT_EQ(entry.txtIntAmt.text + entry.txtLedgerdays.text + entry.txtMinADB.text, "");
}

TEST_F(StatementCompute, ASteppedAccountRefusesAMinimumAdbAlone) {
  Stepped();
  session.AdditionalApy = true;
  ChooseMethod(session, entry, false);
  Minimums("100", "0");
  EXPECT_EQ(Told(StartCompute(session, entry, Ledger).refusal),
            "                       For Variable Rate Accounts\n"
            "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
            "                             Please try again @ txtMinADB");
  EXPECT_EQ(entry.txtIntAmt.text, "12.50") << "nothing typed is lost";
  EXPECT_EQ(Told(CalculateStatement(session, entry).refusal),
            "For Variable Rate Accounts\n"
            "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
            "Please try again @ txtMinADB");
  EXPECT_EQ(Told(LoadDailyBalances(session, 0, daily)), "Enter valid number of days @ ");
}

TEST_F(StatementCompute, ShowDetailNeedsTheDaysOfTheFiguresInUse) {
  const auto hasDetail = [this] {
    EXPECT_EQ(Told(CalculateStatement(session, entry).refusal), "");
    return bool{session.DetailData};
  };
  Compute(Ledger, "1000");
  EXPECT_TRUE(hasDetail());
  entry.txtADBLedgerBalance.text = "1000.01";
  EXPECT_FALSE(hasDetail()) << "another average";
  Compute(Ledger, "1000");
  entry.txtLedgerdays.text = "31";
  EXPECT_FALSE(hasDetail()) << "other days";
}

TEST_F(StatementCompute, ARateFollowsItsBalance) {
  Open(Ledger);
  EXPECT_EQ(EnterBalance(daily, 0, "-5").rate, "3.65");
  EXPECT_EQ(EnterBalance(daily, 0, "0").rate, "") << "a zero balance shows no rate";
  EXPECT_EQ(EnterBalance(daily, 0, "-").balance, "-") << "left as typed";
}

TEST_F(StatementCompute, BalancesBeyondAnyNumberAreRefusedAndNotStored) {
  Open(Ledger);
  Type(std::string(308, '9'));
  EXPECT_EQ(Told(ComputeAdb(session, daily)),
            "The entries give a result that cannot be computed. Please correct them. @ ");
  EXPECT_EQ(session.LedgerDayBalances.Last(), 0);
}

}  // namespace
}  // namespace corvane
