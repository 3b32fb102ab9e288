#include "reports/StatementReport.h"

#include <gtest/gtest.h>

#include "reports/GoldenFile.h"
#include "reports/InterestReport.h"

namespace corvane {
namespace {

const AccountHeader kHeader = {"First & Farmers' Bank", "NOW <Account>", "J. M\xC3\xBCller",
                               "\"123\""};
const Date kToday = *ParseDate("03-07-2024");

/// Regulation DD's statement: $5.25 on an average of $1,000 over 30 days is an APY earned of 6.58.
StatementCheck RegularCheck() {
  StatementCheck check;
  check.setup.compounding = Unit::Days;
  check.setup.txtDCompounding.text = " 1";
  check.entry = {.txtMinADB = {"0"},
                 .txtMinDBal = {" 1500.00 "},
                 .txtDClApy = {" 6.58"},
                 .txtIntRate = {" 6.3875 "},
                 .txtDRFactor = {" 1/365"},
                 .txtLedgerdays = {" 30 "},
                 .txtADBLedgerBalance = {"1000"},
                 .txtColDays = {"0"},
                 .txtADBCollectedBalance = {"0.00"},
                 .txtIntAmt = {"5.25"},
                 .method = BalanceMethod::AverageDailyBalance};
  check.result = {5.25, 6.58, Verdict::Ok};
  return check;
}

/// By the collected balance of each day, without compounding, in a leap year.
StatementCheck TieredCheck() {
  StatementCheck check = RegularCheck();
  check.setup = {.kind = AccountKind::TierB, .year = {366, true}, .additionalFormula = true};
  check.entry.method = BalanceMethod::DailyBalance;
  check.entry.txtDRFactor.text = "";
  check.entry.txtDClApy.text = "6.64";
  check.entry.txtLedgerdays.text = "-3";
  check.entry.txtADBLedgerBalance.text = "";
  check.entry.txtColDays.text = "31";
  check.entry.txtADBCollectedBalance.text = "-12.5";
  check.result->verdict = Verdict::Violation;
  return check;
}

TEST(StatementReport, RegularByTheLedgerAndTieredByTheCollectedBalance) {
  const ReportContent regular = StatementReport(kHeader, RegularCheck(), kToday);
  ExpectReport("statement_template.txt", "statement_regular.html", regular);
  ExpectShippedReport(kStatementReport, "statement_shipped.html", regular);
  ExpectReport("statement_template.txt", "statement_tiered.html",
               StatementReport(kHeader, TieredCheck(), kToday));
}

TEST(StatementReport, EveryAccountTypeButRegularHasAVariableRate) {
  for (const auto& [kind, heading] : {std::pair{AccountKind::Stepped, "STEPPED RATE"},
                                      std::pair{AccountKind::TierA, "TIERING Method A"}}) {
    StatementCheck check = RegularCheck();
    check.setup.kind = kind;
    const Rows lines =
        FillTemplate({"^Rpt_Type^", "^datarow^"}, StatementReport(kHeader, check, kToday)).lines;
    EXPECT_EQ(lines.at(0), heading);
    EXPECT_TRUE(lines.at(1).starts_with("<TR align=center><TD>variable</TD><TD>1</TD>"));
  }
}

TEST(StatementReport, TheDaysOfTheYearAreThoseOfTheFactor) {
  StatementCheck check = TieredCheck();
  for (const auto& [factor, days] : {std::pair{"1/365", "365"}, std::pair{"?", "366"}}) {
    check.entry.txtDRFactor.text = factor;
    EXPECT_EQ(FillTemplate({"^drf^"}, StatementReport(kHeader, check, kToday)).lines, Rows{days});
  }
}

TEST(InterestReport, EveryDayOfAColumn) {
  DailyBalances daily;
  daily.column = BalanceColumn::Collected;
  daily.start = *ParseDate("02-28-2024");
  daily.days = {{"1000.50", "4.00"}, {}, {"-5.00", "4.1265"}, {"1234567.89", "4.50"}};
  ExpectReport("interest_template.txt", "interest_collected.html",
               InterestReport(kHeader, TieredCheck(), daily, kToday));
  daily.column = BalanceColumn::Ledger;
  daily.start = *ParseDate("01-15-2024");
  daily.days.clear();
  for (int day = 1; day <= 31; ++day) {
    daily.days.push_back({FormatFixed2(1000 + day), day <= 20 ? "5.25" : "5.50"});
  }
  ExpectShippedReport(kInterestReport, "interest_shipped.html",
                      InterestReport(kHeader, RegularCheck(), daily, kToday));
}

TEST(InterestReport, EveryDayStandsOnceInThreeColumns) {
  const struct {
    std::size_t days, firstEnds, secondEnds;
  } cases[] = {{0, 0, 0}, {1, 1, 1}, {2, 1, 2}, {31, 11, 21}, {32, 11, 22}, {96, 32, 64}};
  for (const auto& c : cases) {
    const auto columns = SplitDays(c.days);
    const std::size_t ends[] = {0, c.firstEnds, c.secondEnds, c.days};
    for (std::size_t i = 0; i < columns.size(); ++i) {
      EXPECT_EQ(columns[i].first, ends[i]) << c.days;
      EXPECT_EQ(columns[i].end, ends[i + 1]) << c.days;
    }
  }
}

}  // namespace
}  // namespace corvane
