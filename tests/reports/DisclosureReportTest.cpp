#include "reports/DisclosureReport.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"
#include "disclosure/ReportRows.h"
#include "reports/GoldenFile.h"
#include "support/Clock.h"

namespace corvane {
namespace {

class DisclosureReportFile : public testing::Test {
 protected:
  void SetUp() override {
    SetToday(ParseDate("03-07-2024"));
    session_.InstitutionName = "First & Farmers' Bank";
    session_.AccountDescription = "12 Month <CD>";
    session_.AccountHolder = "J. M\xC3\xBCller";
    session_.DaysInYear = 365;
    session_.CompoundDays = true;
    session_.CompoundingDays = 1;
    session_.ReqWdrwlNotReq = true;
  }
  void TearDown() override { SetToday(std::nullopt); }

  void StoreRows(const std::vector<ReportRow>& rows) {
    SizeReportRows(session_, 10);
    int number = 0;
    for (const ReportRow& row : rows) StoreReportRow(session_, ++number, row);
  }

  std::string Filled(const std::string& line, const DisclosureReportEntry& entry = {}) const {
    return BuildReport({line}, DisclosureReport(session_, entry)).text;
  }

  SessionRecord session_;
};

// $1,000 at 5 %, daily, with 12 monthly withdrawals in 365 days: 50.10 and 5.01.
TEST_F(DisclosureReportFile, Regular) {
  session_.AcctRegular = true;
  session_.ReqWdrwlMonths = true;
  session_.ComputedInterest = 50.1;
  session_.ComputedApy = 5.01;
  session_.ApyVerdict = "APY VIOLATION";
  const DisclosureReportEntry entry = {" 1000.00", "5.00 ", " 365 ", "5.13", "12", "1"};
  ExpectReport("disclosure_template.txt", "disclosure_regular.html",
               DisclosureReport(session_, entry));
  ExpectShippedReport(kDisclosureReport, "disclosure_shipped.html",
                      DisclosureReport(session_, entry));
}

TEST_F(DisclosureReportFile, SteppedWithAPeriodStillToCome) {
  session_.AcctStepped = true;
  session_.TierPerNum = 5;
  session_.TierPeriodCounter = 3;
  StoreRows({{"1", "$1,000.00", "5.00%", "91.00", "$12.54", "5.45%", "N/A", "N/A"},
             {"2", "", "5.50%", "92.00", "$14.13", "5.45%", "5.45%", "OK"},
             {"3", "", "5.50%", "92.00", "$14.13", "5.45%", "5.39%", "APY VIOLATION"}});
  ExpectReport("disclosure_template.txt", "disclosure_stepped.html",
               DisclosureReport(session_, {}));
}

// Regulation DD's tiers: 5.25 % to $2,500, 5.50 % to $15,000.
TEST_F(DisclosureReportFile, TieredByMethodB) {
  session_.AcctTierB = true;
  session_.TotalTiers = 2;
  session_.PeriodCount = 3;
  StoreRows(
      {{"1", "$2,500.00", "5.25%", "365.00", "$134.75", "5.39%", "5.39%", "OK"},
       {"2", "$2,500.01", "5.25/5.5%", "365.00", "$134.75", "5.39%", "5.39%", "OK"},
       {"2", "$15,000.00", "5.25/5.5%", "365.00", "$841.45", "5.39%", "5.61%", "APY VIOLATION"}});
  ExpectReport("disclosure_template.txt", "disclosure_tier_b.html", DisclosureReport(session_, {}));
}

TEST_F(DisclosureReportFile, TheWithdrawalLinesFollowTheDaysOfTheYear) {
  session_.DaysInYear = 366;
  for (const char* between : {"", "0"}) {
    EXPECT_EQ(Filled("<b>^drf^</b>", {"", "", "", "", "12", between}),
              "<b>366</b><br><b>Required Interest Withdrawals: </b>12<br>");
  }
  EXPECT_EQ(Filled("<b>^drf^</b>", {"", "", "", "", "", "1"}), "<b>366</b>");
}

TEST_F(DisclosureReportFile, TheDescriptionFollowsTheSetup) {
  using Flags = std::vector<Flag SessionRecord::*>;
  const std::pair<Flags, const char*> cases[] = {
      {{}, "||3|Not Required"},
      {{&SessionRecord::AcctTierB, &SessionRecord::CompoundMonths, &SessionRecord::ReqWdrwlMonths},
       "TIERING Method B|Months|3|Months"},
      {{&SessionRecord::AcctTierA, &SessionRecord::CompoundYears, &SessionRecord::ReqWdrwlDays},
       "TIERING Method A|Years|3|Days"},
      {{&SessionRecord::AcctStepped, &SessionRecord::CompoundNone},
       "STEPPED RATE|None|None|Not Required"},
  };
  for (const auto& [flags, expected] : cases) {
    session_ = {};
    session_.CompoundingDays = 3;
    for (const auto flag : flags) session_.*flag = true;
    EXPECT_EQ(Filled("^MainHeading^|^intcmpd^|^cmpdterm^|^intwd^"), expected);
  }
}

TEST_F(DisclosureReportFile, NoAccountTypeGivesNoRow) {
  StoreRows({{"1", "", "", "", "", "", "", "OK"}});
  session_.PeriodCount = session_.TotalTiers = session_.TierPeriodCounter = 1;
  EXPECT_EQ(Filled("^datarow^"), "");
}

}  // namespace
}  // namespace corvane
