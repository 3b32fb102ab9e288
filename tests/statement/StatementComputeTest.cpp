#include "statement/StatementCompute.h"

#include <gtest/gtest.h>

#include "statement/DailyHandBack.h"
#include "statement/DailyPages.h"
#include "statement/EntryExamples.h"
#include "statement/InterestMethod.h"
#include "statement/StatementCalculation.h"
#include "statement/StatementReset.h"

namespace corvane {
namespace {

using enum BalanceColumn;

/// A person at the two windows.
struct Windows : EntryExample {
  DailyBalances daily;

  void Open(BalanceColumn column) {
    EXPECT_EQ(Told(StartCompute(session, entry, column).refusal), "");
    EXPECT_EQ(Told(LoadDailyBalances(session, entry.txtIntRate.Value(), daily)), "");
  }
  void Type(std::size_t first, std::size_t end, const char* balance, const char* rate = "") {
    for (std::size_t day = first; day < end; ++day) TakeDay(daily, day, {balance, rate});
  }
  void Hand(BalanceColumn column) {
    EXPECT_EQ(Told(ComputeAdb(session, daily)), "");
    FinishCompute(session, entry, column);
  }
  void Compute(BalanceColumn column, const char* balance) {
    Open(column);
    Type(0, daily.days.size(), balance);
    Hand(column);
  }
};

TEST(StatementCompute, FifteenDaysAtEachOfTwoBalancesAverageToTheirMean) {
  Windows w;
  w.entry.txtIntRate.text = "3.65";
  w.Open(Ledger);
  w.Type(0, 15, "1500");
  w.Type(15, 30, "500");
  w.Hand(Ledger);
  EXPECT_EQ(w.entry.txtADBLedgerBalance.text, "1000.00");
  EXPECT_EQ(w.entry.txtIntAmt.text, "3.00");
  EXPECT_EQ(w.session.LedgerDayBalances.Last(), 30);
  EXPECT_EQ(w.session.LedgerDayBalances.At(15), 1500);
  EXPECT_EQ(w.session.LedgerDayBalances.At(16), 500);
  EXPECT_EQ(w.session.LedgerDayRates.At(30), 3.65);
  EXPECT_TRUE(w.session.LedgerDaysEntered && !w.session.CollectedDaysEntered);
}

TEST(StatementCompute, BothMinimumsWithTheDailyMethodHandBackTheAverageOnly) {
  for (const bool adb : {true, false}) {
    Windows w;
    w.entry.txtIntRate.text = "3.65";
    w.Minimums("100", "50");
    ChooseMethod(w.session, w.entry, adb);
    w.Compute(Ledger, "1000");
    EXPECT_EQ(w.entry.txtADBLedgerBalance.text, "1000.00");
    EXPECT_EQ(w.entry.txtIntAmt.text, adb ? "3.00" : "0.00");
    EXPECT_EQ(w.session.BalanceMethodCode, adb ? 1 : 2) << "put back";
  }
}

TEST(StatementCompute, ASoleDailyMinimumAboveTheAverageLeavesTheInterestToBeTyped) {
  Windows w;
  ChooseMethod(w.session, w.entry, false);
  w.Minimums("0", "500");
  w.Compute(Ledger, "499.99");
  EXPECT_EQ(w.entry.txtADBLedgerBalance.text, "499.99");
  EXPECT_EQ(w.entry.txtIntAmt.text, "");
}

TEST(StatementCompute, WithBasis2TheLedgerLeavesTheCollectedInterestAlone) {
  Windows w;
  w.entry.txtIntRate.text = "3.65";
  ChooseLedgerEqualsCollected(w.session, w.entry, false);
  w.entry.txtLedgerdays.text = "30";
  w.Compute(Collected, "1000");
  EXPECT_EQ(w.session.StatementDays, 30) << "the ledger's days, the collected field is disabled";
  EXPECT_EQ(w.entry.txtIntAmt.text, "3.00");
  w.Compute(Ledger, "2000");
  EXPECT_EQ(w.entry.txtIntAmt.text, "3.00");
  EXPECT_NEAR(w.session.InterestAmount, 3, 1e-12);
  EXPECT_EQ(w.entry.txtADBLedgerBalance.text, "2000.00");
  EXPECT_EQ(w.entry.txtADBCollectedBalance.text, "1000.00");
  EXPECT_EQ(w.session.CollectedDayBalances.At(30), 1000) << "each column keeps its days";
}

TEST(StatementCompute, ACancelLeavesEverythingAsItWas) {
  Windows w;
  w.Compute(Ledger, "1000");
  w.entry.txtIntAmt.text = "7.77";
  ChooseLedgerEqualsCollected(w.session, w.entry, false);
  w.entry.txtLedgerdays.text = "31";
  const BeforeCompute before = Remember(w.session, w.entry);
  w.Open(Collected);
  w.Type(0, 31, "5");
  StoreDays(w.session, w.daily);
  CancelCompute(w.session, w.entry, before);
  EXPECT_TRUE(w.session.ComputeFlag);
  EXPECT_EQ(w.entry.txtIntAmt.text, "7.77");
  EXPECT_EQ(w.session.StatementDays, 30);
  EXPECT_TRUE(w.session.LedgerBasis);
  EXPECT_EQ(w.session.CollectedDayBalances.Last(), 0);
  EXPECT_EQ(w.session.LedgerDayBalances.At(30), 1000);
}

TEST(StatementCompute, TheStoredDaysComeBackUntilLengthOrAccountChange) {
  Windows w;
  w.Compute(Ledger, "1000");
  w.Open(Ledger);
  EXPECT_EQ(TextsOfDay(w.daily, 29).balance, "1000.00");
  w.entry.txtLedgerdays.text = "29";
  w.Open(Ledger);
  EXPECT_EQ(TextsOfDay(w.daily, 0).balance, "") << "another length starts empty";
  w.entry.txtLedgerdays.text = "30";
  w.session.DailyBalReset = true;
  w.Open(Ledger);
  EXPECT_EQ(TextsOfDay(w.daily, 0).balance, "") << "a new account starts empty";
  EXPECT_FALSE(w.session.DailyBalReset);
  EXPECT_FALSE(w.session.DetailData);
}

TEST(StatementCompute, RefusesASteppedMinimumAdbAloneBeforeAnythingTypedIsLost) {
  Windows w;
  w.Stepped();
  w.session.AdditionalApy = true;
  ChooseMethod(w.session, w.entry, false);
  w.Minimums("100", "0");
  EXPECT_EQ(Told(StartCompute(w.session, w.entry, Ledger).refusal),
            "                       For Variable Rate Accounts\n"
            "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
            "                             Please try again @ txtMinADB");
  EXPECT_EQ(w.entry.txtIntAmt.text, "12.50");
  w.session.StatementDays = 0;
  EXPECT_EQ(Told(LoadDailyBalances(w.session, 0, w.daily)), "Enter valid number of days @ ");
}

TEST(StatementCompute, ShowDetailNeedsTheDaysOfTheFiguresInUse) {
  Windows w;
  const auto calculated = [&w] {
    w.entry.txtIntAmt.text = "1";
    EXPECT_EQ(Told(CalculateStatement(w.session, w.entry).refusal), "");
    return bool{w.session.DetailData};
  };
  EXPECT_FALSE(calculated()) << "nothing computed yet";
  w.Compute(Ledger, "1000");
  EXPECT_TRUE(calculated());
  w.entry.txtADBLedgerBalance.text = "1000.01";
  EXPECT_FALSE(calculated()) << "another average";
  w.Compute(Ledger, "1000");
  w.entry.txtLedgerdays.text = "31";
  EXPECT_FALSE(calculated()) << "other days";
  w.Compute(Ledger, "1000");
  ResetStatement(w.session);
  EXPECT_FALSE(w.session.DetailData);
  EXPECT_EQ(w.session.LedgerDayBalances.Last(), 0) << "nothing is left for the next account";
}

TEST(DailyBalances, RatesFollowTheBalancesOfEveryPage) {
  Windows w;
  w.session.AcctRegular = false;
  w.session.AcctTierA = true;
  w.session.TierNumber = 2;
  w.session.TierAbove.Set(2, 1000);
  w.session.TierRate.Set(1, 1);
  w.session.TierRate.Set(2, 4.1265);
  w.entry.txtLedgerdays.text = "96";
  w.Open(Ledger);
  EXPECT_EQ(EnterBalance(w.daily, 0, "1000.01").rate, "4.1265");
  EXPECT_EQ(EnterBalance(w.daily, 1, "1000").rate, "1.00");
  EXPECT_EQ(EnterBalance(w.daily, 2, "0").rate, "") << "a zero balance shows no rate";
  EXPECT_EQ(EnterBalance(w.daily, 3, "-5").rate, "1.00");
  EXPECT_EQ(EnterBalance(w.daily, 4, "-").balance, "-") << "left as typed";
  w.daily.days[95].balance = 5000;
  ComputeAdb(w.session, w.daily);
  EXPECT_EQ(w.session.LedgerDayRates.At(96), 4.1265);
  EXPECT_EQ(w.session.LedgerDayRates.At(3), 1);
  EXPECT_EQ(w.session.LedgerDayBalances.At(4), -5) << "the typed value stays";
  ClearDays(w.daily);
  EXPECT_EQ(TextsOfDay(w.daily, 0).balance, "");
}

TEST(DailyBalances, ASteppedAccountKeepsItsTypedRates) {
  Windows w;
  w.Stepped();
  w.Open(Ledger);
  w.Type(0, 15, "1000", "3.65");
  w.Type(15, 30, "1000", "7.3");
  w.Hand(Ledger);
  EXPECT_EQ(w.entry.txtIntAmt.text, "4.50");
  EXPECT_EQ(w.session.LedgerDayRates.At(16), 7.3);
}

TEST(DailyBalances, BalancesBeyondAnyNumberAreRefusedAndNotStored) {
  Windows w;
  w.Open(Ledger);
  w.Type(0, 30, std::string(308, '9').c_str());
  EXPECT_EQ(Told(ComputeAdb(w.session, w.daily)),
            "The entries give a result that cannot be computed. Please correct them. @ ");
  EXPECT_EQ(w.session.LedgerDayBalances.Last(), 0);
  EXPECT_FALSE(w.session.DetailData);
}

TEST(DailyBalances, PagesHoldThirtyThreeDaysAndEndWithThePeriod) {
  struct Page {
    std::size_t days;
    int page;
    std::size_t first;
    std::size_t end;
    bool next;
  };
  const Page pages[] = {{1, 1, 0, 1, false},    {33, 1, 0, 33, false},  {34, 1, 0, 33, true},
                        {34, 2, 33, 34, false}, {66, 2, 33, 66, false}, {67, 2, 33, 66, true},
                        {67, 3, 66, 67, false}, {96, 3, 66, 96, false}};
  for (const Page& p : pages) {
    const DaySpan span = DaysOnPage(p.page, p.days);
    EXPECT_EQ(span.first, p.first) << p.days << " days, page " << p.page;
    EXPECT_EQ(span.end, p.end) << p.days << " days, page " << p.page;
    EXPECT_EQ(HasNextPage(p.page, p.days), p.next) << p.days << " days, page " << p.page;
  }
  EXPECT_EQ(DayLabel(SerialOf(*ParseDate("02-28-2024")), 2), "Mar 1");
}

}  // namespace
}  // namespace corvane
