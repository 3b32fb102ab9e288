#include "reports/StatementReport.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"
#include "reports/GoldenFile.h"
#include "reports/InterestReport.h"
#include "support/Clock.h"

namespace corvane {
namespace {

/// Regulation DD's statement: $5.25 on an average of $1,000 over 30 days is an APY earned of 6.58.
class StatementReportFile : public testing::Test {
 protected:
  void SetUp() override {
    SetToday(ParseDate("03-07-2024"));
    session_.InstitutionName = "First & Farmers' Bank";
    session_.AccountDescription = "NOW <Account>";
    session_.AccountHolder = "J. M\xC3\xBCller";
    session_.AccountNumber = "\"123\"";
    session_.AcctRegular = session_.CompoundDays = session_.UseAdb = true;
    session_.CompoundingDays = 1;
    session_.DaysInYear = 365;
    session_.ComputedApy = 6.58;
    session_.ApyVerdict = "OK";
    entry_ = {.txtDCompounding = " 1",
              .txtMinADB = "0",
              .txtMinDBal = " 1500.00 ",
              .txtIntRate = " 6.3875 ",
              .txtIntAmt = "5.25",
              .txtDClApy = " 6.58",
              .txtLedgerdays = " 30 ",
              .txtADBLedgerBalance = "1000",
              .txtColDays = "0",
              .txtADBCollectedBalance = "0.00"};
  }
  void TearDown() override { SetToday(std::nullopt); }

  /// Without compounding, by the daily balance, in a leap year.
  void BecomeTierB() {
    session_.AcctRegular = session_.CompoundDays = session_.UseAdb = false;
    session_.AcctTierB = session_.CompoundNone = true;
    session_.CompoundingDays = 0;
    session_.DaysInYear = 366;
  }

  SessionRecord session_;
  StatementReportEntry entry_;
};

TEST_F(StatementReportFile, RegularByTheLedger) {
  ExpectReport("statement_template.txt", "statement_regular.html",
               StatementReport(session_, entry_));
  ExpectShippedReport(kStatementReport, "statement_shipped.html",
                      StatementReport(session_, entry_));
}

TEST_F(StatementReportFile, TieredByTheCollectedBalance) {
  BecomeTierB();
  session_.ApyVerdict = "APY VIOLATION";
  entry_.optFormulaYes = true;
  entry_.txtDCompounding = "";
  entry_.txtDClApy = "6.64";
  entry_.txtLedgerdays = "-3";
  entry_.txtADBLedgerBalance = "";
  entry_.txtColDays = "31";
  entry_.txtADBCollectedBalance = "-12.5";
  ExpectReport("statement_template.txt", "statement_tiered.html",
               StatementReport(session_, entry_));
}

TEST_F(StatementReportFile, EveryAccountTypeButRegularHasAVariableRate) {
  session_.AcctRegular = false;
  for (const auto& [type, heading] : {std::pair{&SessionRecord::AcctStepped, "STEPPED RATE"},
                                      std::pair{&SessionRecord::AcctTierA, "TIERING Method A"}}) {
    SessionRecord session = session_;
    session.*type = true;
    const auto text = BuildReport({"^Rpt_Type^", "^datarow^"}, StatementReport(session, {})).text;
    EXPECT_EQ(text.substr(0, text.find("</TD>")),
              heading + std::string("<TR align=center><TD>variable"));
  }
}

TEST_F(StatementReportFile, InterestByDayOfTheCollectedBalance) {
  BecomeTierB();
  session_.StatementDays = 4;
  session_.PeriodStart = SerialOf(*ParseDate("02-28-2024"));
  session_.CollectedDayBalances.Resize(1, 4);
  session_.CollectedDayRates.Resize(1, 4);
  const double days[][2] = {{1000.5, 4}, {0, 0}, {-5, 4.1265}, {1234567.89, 4.5}};
  int day = 0;
  for (const auto& [balance, rate] : days) {
    session_.CollectedDayBalances.Set(++day, balance);
    session_.CollectedDayRates.Set(day, rate);
  }
  ExpectReport("interest_template.txt", "interest_collected.html",
               InterestReport(session_, {true}));
}

TEST_F(StatementReportFile, InterestByDayOfTheLedgerOverAMonth) {
  session_.LedgerBasis = true;
  session_.StatementDays = 31;
  session_.PeriodStart = SerialOf(*ParseDate("01-15-2024"));
  session_.LedgerDayBalances.Resize(1, 31);
  session_.LedgerDayRates.Resize(1, 31);
  for (int day = 1; day <= 31; ++day) {
    session_.LedgerDayBalances.Set(day, 1000 + day);
    session_.LedgerDayRates.Set(day, day <= 20 ? 5.25 : 5.5);
  }
  ExpectShippedReport(kInterestReport, "interest_shipped.html", InterestReport(session_, {}));
}

TEST(InterestReportColumns, EveryDayStandsOnceInThreeColumns) {
  const struct {
    int days, firstEnds, secondEnds;
  } cases[] = {{0, 0, 0}, {1, 1, 1}, {2, 1, 2}, {31, 11, 21}, {32, 11, 22}, {96, 32, 64}};
  for (const auto& c : cases) {
    const auto columns = SplitDays(c.days);
    EXPECT_EQ(columns[0].first, 1) << c.days;
    EXPECT_EQ(columns[0].last, c.firstEnds) << c.days;
    EXPECT_EQ(columns[1].first, c.firstEnds + 1) << c.days;
    EXPECT_EQ(columns[1].last, c.secondEnds) << c.days;
    EXPECT_EQ(columns[2].first, c.secondEnds + 1) << c.days;
    EXPECT_EQ(columns[2].last, c.days) << c.days;
  }
}

}  // namespace
}  // namespace corvane
