#include <gtest/gtest.h>

#include "statement/EntryExamples.h"

namespace corvane {
namespace {

using enum BalanceColumn;

/// A person at the two windows; the account pays 0.01 % a day.
class StatementCheckTest : public ::testing::Test, protected EntryExample {
 protected:
  StatementCheckTest() { entry.txtIntRate.text = "3.65"; }

  DailyBalances Open(BalanceColumn column) {
    EXPECT_EQ(Told(StartCompute(*this, column).refusal), "");
    return DaysOf(*this, column, *ParseDate("03-15-2026"));
  }
  DailyBalances OpenAndType(BalanceColumn column, const std::string& balance) {
    DailyBalances daily = Open(column);
    for (std::size_t day = 0; day < daily.days.size(); ++day) TakeDay(daily, day, {balance, ""});
    return daily;
  }
  /// What the entry window then shows for average and interest.
  std::string Compute(BalanceColumn column, const char* balance) {
    const DailyBalances daily = OpenAndType(column, balance);
    FinishCompute(*this, daily, std::get<ComputedDays>(ComputeAdb(daily)));
    return entry.Average(column).text + " " + entry.txtIntAmt.text;
  }
  std::string Calculated() { return Told(CalculateStatement(*this).refusal); }
  /// Balance and rate that the daily window shows for the first day.
  std::string Reopened(BalanceColumn column, const char* period = "30") {
    entry.txtLedgerdays.text = period;
    const DayEntry first = Open(column).days.at(0);
    return first.balance + " " + first.rate;
  }
};

TEST_F(StatementCheckTest, TheMinimumsDecideWhatIsHandedBack) {
  Minimums("100", "50");
  EXPECT_EQ(Compute(Ledger, "1000"), "1000.00 3.00");
  entry.method = BalanceMethod::DailyBalance;
  EXPECT_EQ(Compute(Ledger, "1000"), "1000.00 0.00") << "the daily method withholds it";
  Minimums("0", "500");
  EXPECT_EQ(Compute(Ledger, "499.99"), "499.99 ") << "below a sole daily minimum it is typed";
}

TEST_F(StatementCheckTest, TheLedgerAverageLeavesTheCollectedInterestAlone) {
  ChooseLedgerEqualsCollected(entry, false);
  entry.txtLedgerdays.text = "30";
  EXPECT_EQ(Compute(Collected, "1000"), "1000.00 3.00");
  EXPECT_EQ(Compute(Ledger, "2000"), "2000.00 3.00");
  EXPECT_EQ(Reopened(Ledger) + " " + Reopened(Collected), "2000.00 3.65 1000.00 3.65");
  entry.method = BalanceMethod::DailyBalance;
  Minimums("0", "500");
  EXPECT_EQ(Compute(Collected, "499.99"), "499.99 0.00") << "the average is the ledger's";
}

TEST_F(StatementCheckTest, ACancelLeavesTheFiguresAndTheDetailOfDaysThatFit) {
  Compute(Ledger, "1000");
  entry.txtIntAmt = {"7.77"};
  const auto cancelled = [this] {
    const StatementCheck before = *this;
    return CancelledCompute(before, OpenAndType(Ledger, "5"));
  };
  StatementCheck after = cancelled();
  EXPECT_EQ(after.entry.txtIntAmt.text, "7.77");
  ASSERT_TRUE(DetailOf(after));
  EXPECT_EQ(after.detail->daily.days[29].balance, "1000.00");
  entry.txtLedgerdays.text = "0";
  entry.txtDateStart.text = "01-01-2024";
  entry.txtDateEnd.text = "02-01-2024";
  after = cancelled();
  EXPECT_EQ(after.entry.txtLedgerdays.text, "31") << "the days stay counted";
  EXPECT_FALSE(after.detail) << "the days opened were new ones";
}

TEST_F(StatementCheckTest, TheDaysComeBackUntilTheirNumberChanges) {
  Compute(Ledger, "1000");
  entry.txtIntRate.text = "7.3";
  EXPECT_EQ(Reopened(Ledger), "1000.00 7.30");
  EXPECT_EQ(Reopened(Ledger, "29"), " ");
  Compute(Ledger, "");
  EXPECT_EQ(Reopened(Ledger, "29"), " 7.30") << "what was left empty is no 0";
}

TEST_F(StatementCheckTest, ASteppedAccountRefusesAMinimumAdbAlone) {
  Become(AccountKind::Stepped);
  setup.additionalFormula = true;
  Minimums("100", "0");
  EXPECT_EQ(Told(StartCompute(*this, Ledger).refusal),
            "                       For Variable Rate Accounts\n"
            "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
            "                             Please try again @ txtMinADB");
  EXPECT_EQ(entry.txtIntAmt.text, "12.50") << "nothing typed is lost";
  EXPECT_EQ(Calculated(),
            "For Variable Rate Accounts\n"
            "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
            "Please try again @ txtMinADB");
}

TEST_F(StatementCheckTest, InterestAndDetailNeedTheDaysOfTheFiguresInUse) {
  const struct {
    const char* what;
    void (*change)(StatementCheck&);
    const char* interest = "";
    const char* note = "terms changed: compute or enter again";
  } changes[] = {
      {"average", [](auto& c) { c.entry.txtADBLedgerBalance.text = "1000.01"; }, "3.00", ""},
      {"days", [](auto& c) { c.entry.txtLedgerdays.text = "31"; }, "3.00", ""},
      {"typed", [](auto& c) { c.entry.txtMinADB.text = "1", c.entry.txtIntAmt = {"7.77"}; }, "7.77",
       ""},
      {"rate", [](auto& c) { c.entry.txtIntRate.text = "3.66"; }},
      {"factor", [](auto& c) { c.entry.txtDRFactor.text = "1/360"; }},
      {"minimum", [](auto& c) { c.entry.txtMinADB.text = "1"; }},
      {"method", [](auto& c) { c.entry.method = BalanceMethod::DailyBalance; }},
      {"kind", [](auto& c) { c.setup.kind = AccountKind::TierB; }},
      {"compounding", [](auto& c) { ChooseCompounding(c.setup, Unit::Days); }},
  };
  Compute(Ledger, "1000");
  EXPECT_EQ(detail->daily.start, ParseDate("03-15-2026")) << "no start was typed";
  entry.txtDateStart.text = "01-01-2024";
  EXPECT_EQ(Calculated(), "");
  ASSERT_TRUE(DetailOf(*this));
  EXPECT_EQ(DetailOf(*this)->daily.start, ParseDate("01-01-2024"));
  for (const auto& row : changes) {
    StatementCheck changed = *this;
    row.change(changed);
    FollowChanges(changed);
    EXPECT_FALSE(DetailOf(changed)) << row.what;
    EXPECT_EQ(changed.entry.txtIntAmt.text, row.interest) << row.what;
    EXPECT_EQ(InterestNoteText(changed.entry), row.note) << row.what;
  }
  ChooseLedgerEqualsCollected(entry, false);
  entry.txtLedgerdays.text = "30";
  entry.txtADBLedgerBalance.text = "1000.00";
  EXPECT_FALSE(DetailOf(*this)) << "another basis";
}

TEST_F(StatementCheckTest, ARateFollowsItsBalance) {
  DailyBalances daily = Open(Ledger);
  for (const auto& [typed, row] : {std::pair{"-5", "-5.00 3.65"}, {"0", "0.00 "}, {"-", "- "}}) {
    EnterBalance(daily, 0, typed);
    EXPECT_EQ(daily.days[0].balance + " " + daily.days[0].rate, row);
  }
}

TEST_F(StatementCheckTest, APageIsLeftWithNumbersOnlyAndEmptyDaysAreAskedAbout) {
  Become(AccountKind::Stepped);
  entry.txtLedgerdays.text = "40";
  DailyBalances daily = Open(Ledger);
  const std::string noBalance = "Please enter a valid balance for Apr 18. @ txtDayBal(1)";
  const std::string noRate = "Please enter a valid rate for Apr 18. @ txtRate(1)";
  for (const auto& [row, told] : {std::pair{DayEntry{"-", "x"}, noBalance},
                                  {{"1,000", ""}, noBalance},
                                  {{"", "."}, noRate},
                                  {{"5", "-1"}, noRate},
                                  {{"-5", "0"}, ""}}) {
    TakeDay(daily, 34, row);
    EXPECT_EQ(Told(CheckPage(daily, 2)), told);
    EXPECT_EQ(Told(CheckPage(daily, 1)), "") << "another page";
  }
  EXPECT_EQ(EmptyDaysQuestion(daily),
            "39 of 40 days have no balance and count as 0. Compute the average all the same?");
  EXPECT_EQ(EmptyDaysQuestion(OpenAndType(Ledger, "0")), std::nullopt);
}

TEST_F(StatementCheckTest, BalancesThatNoAccountHasAreRefused) {
  entry.method = BalanceMethod::DailyBalance;
  const auto computed = ComputeAdb(OpenAndType(Ledger, "10000000000000"));
  EXPECT_EQ(Told(std::get<Refusal>(computed)),
            "The entries give a result that cannot be computed. Please correct them. @ ");
}

TEST_F(StatementCheckTest, TheCollectedAverageTakesItsColumnAndTheInterestIsRounded) {
  setup.year.countsLeapDay = true;
  ChooseLedgerEqualsCollected(entry, false);
  ChooseLedgerAdb(entry, false);
  entry.txtColDays.text = "30";
  EXPECT_EQ(Calculated(),
            "Please enter an ADB Collected balance > 0 to continue @ txtADBCollectedBalance");
  entry.txtADBCollectedBalance.text = "1000";
  entry.txtIntAmt.text = "5.245";
  EXPECT_EQ(Calculated(), "");
  EXPECT_EQ(result->interest, 5.24) << "an exact half goes to the even cent";
  // 100 x (1.00524 ^ (366 / 30) - 1) = 6.5837...
  EXPECT_EQ(result->apy, 6.58);
  EXPECT_EQ(result->verdict, Verdict::Violation) << "1.53 is disclosed";
}

TEST_F(StatementCheckTest, CalculateRefusesInItsOrder) {
  EXPECT_EQ(Calculated(), "");
  entry.txtMinADB.text = "x";
  entry.txtIntAmt.text = "";
  entry.txtADBLedgerBalance.text = "0";
  // Each row sets a field; the period comes before the other fields, their checks before the
  // results'.
  const std::tuple<Field&, const char*, const char*> rows[] = {
      {entry.txtLedgerdays, "0", "Starting Date is invalid, Please correct @ txtDateStart"},
      {entry.txtLedgerdays, "1", "Please enter a valid Minimum ADB amount or Zero @ txtMinADB"},
      {entry.txtMinADB, "0",
       "Please enter an ADB Ledger balance > 0 to continue @ txtADBLedgerBalance"},
      {entry.txtADBLedgerBalance, "0.01",
       "Please enter a valid interest for ADB Method @ txtIntAmt"},
      {entry.txtIntAmt, "99999999",
       "The entries give a result that cannot be computed. Please correct them. @ txtIntAmt"},
  };
  for (const auto& [field, text, told] : rows) {
    field.text = text;
    EXPECT_EQ(Calculated(), told);
    EXPECT_FALSE(result) << told;
  }
  entry.method = BalanceMethod::DailyBalance;
  entry.txtIntAmt.text = "-1";
  EXPECT_EQ(Calculated(), "Please enter a valid interest in for Daily Balance Method @ txtIntAmt");
}

}  // namespace
}  // namespace corvane
