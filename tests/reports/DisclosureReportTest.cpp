#include "reports/DisclosureReport.h"

#include <gtest/gtest.h>

#include "platform/Clock.h"
#include "reports/GoldenFile.h"
#include "shell/SessionRecord.h"

namespace corvane {
namespace {

constexpr const char* kSmallTemplate = "disclosure_template.txt";

/// Gives row i of the report tables its eight texts.
void StoreRow(SessionRecord& session, int i, const std::vector<std::string>& texts) {
  session.RptLineNo.Set(i, texts[0]);
  session.RptBalance.Set(i, texts[1]);
  session.RptRate.Set(i, texts[2]);
  session.RptTerm.Set(i, texts[3]);
  session.RptInterest.Set(i, texts[4]);
  session.RptDisclosedApy.Set(i, texts[5]);
  session.RptComputedApy.Set(i, texts[6]);
  session.RptVerdict.Set(i, texts[7]);
}

void StoreRows(SessionRecord& session, int size,
               const std::vector<std::vector<std::string>>& rows) {
  for (auto* table : {&session.RptLineNo, &session.RptBalance, &session.RptRate, &session.RptTerm,
                      &session.RptInterest, &session.RptDisclosedApy, &session.RptComputedApy,
                      &session.RptVerdict}) {
    table->Resize(1, size);
  }
  int i = 0;
  for (const auto& row : rows) StoreRow(session, ++i, row);
}

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

  /// $1,000 at 5 %, daily, with 12 monthly withdrawals in 365 days: 50.10 and 5.01.
  DisclosureReportEntry RegularAccount() {
    session_.AcctRegular = true;
    session_.ReqWdrwlNotReq = false;
    session_.ReqWdrwlMonths = true;
    session_.ComputedInterest = 50.1;
    session_.ComputedApy = 5.01;
    session_.ApyVerdict = "APY VIOLATION";
    return {" 1000.00", "5.00 ", " 365 ", "5.13", "12", "1"};
  }

  std::string LineWithDays(const std::string& periods, const std::string& between) {
    const DisclosureReportEntry entry{"", "", "", "", periods, between};
    return BuildReport({"<b>^drf^</b>"}, DisclosureReport(session_, entry)).text;
  }

  SessionRecord session_;
};

TEST_F(DisclosureReportFile, Regular) {
  const DisclosureReportEntry entry = RegularAccount();
  ExpectReport(SmallTemplate(kSmallTemplate), "disclosure_regular.html",
               DisclosureReport(session_, entry));
  ExpectReport(ShippedTemplate(kDisclosureReport.templateName), "disclosure_shipped.html",
               DisclosureReport(session_, entry));
}

// Regulation DD's stepped account: $1,000 at 5 % for 91 days, then 5.5 % for 92 days.
TEST_F(DisclosureReportFile, Stepped) {
  session_.AcctStepped = true;
  session_.TierPerNum = 2;
  session_.TierPeriodCounter = 2;
  StoreRows(session_, 2,
            {{"1", "$1,000.00", "5.00%", "91.00", "$12.54", "5.45%", "N/A", "N/A"},
             {"2", "", "5.50%", "92.00", "$14.13", "5.45%", "5.39%", "APY VIOLATION"}});
  ExpectReport(SmallTemplate(kSmallTemplate), "disclosure_stepped.html",
               DisclosureReport(session_, {}));
}

TEST_F(DisclosureReportFile, SteppedWithAPeriodStillToCome) {
  session_.AcctStepped = true;
  session_.TierPerNum = 3;
  session_.TierPeriodCounter = 1;
  StoreRows(session_, 3, {{"1", "$1,000.00", "5.00%", "91.00", "$12.54", "5.13%", "5.13%", "OK"}});
  ExpectReport(SmallTemplate(kSmallTemplate), "disclosure_stepped_first.html",
               DisclosureReport(session_, {}));
}

// Regulation DD's tiers: 5.25 % to $2,500, 5.50 % to $15,000, 5.75 % above.
TEST_F(DisclosureReportFile, TieredByMethodA) {
  session_.AcctTierA = true;
  session_.TotalTiers = 3;
  session_.PeriodCount = 9;
  StoreRows(
      session_, 10,
      {{"1", "$1,000.00", "5.25%", "365.00", "$53.90", "5.39%", "5.39%", "OK"},
       {"2", "$8,000.00", "5.50%", "365.00", "$452.29", "5.65%", "5.65%", "OK"},
       {"3", "$20,000.00", "5.75%", "365.00", "$1,183.61", "6.00%", "5.92%", "APY VIOLATION"}});
  ExpectReport(SmallTemplate(kSmallTemplate), "disclosure_tier_a.html",
               DisclosureReport(session_, {}));
}

TEST_F(DisclosureReportFile, TieredByMethodB) {
  session_.AcctTierB = true;
  session_.TotalTiers = 2;
  session_.PeriodCount = 3;
  StoreRows(
      session_, 3,
      {{"1", "$2,500.00", "5.25%", "365.00", "$134.75", "5.39%", "5.39%", "OK"},
       {"2", "$2,500.01", "5.25/5.5%", "365.00", "$134.75", "5.39%", "5.39%", "OK"},
       {"2", "$15,000.00", "5.25/5.5%", "365.00", "$841.45", "5.39%", "5.61%", "APY VIOLATION"}});
  ExpectReport(SmallTemplate(kSmallTemplate), "disclosure_tier_b.html",
               DisclosureReport(session_, {}));
}

TEST_F(DisclosureReportFile, TheWithdrawalLinesFollowTheDaysOfTheYear) {
  const std::string periods = "<br><b>Required Interest Withdrawals: </b>";
  const std::string between = "<br><b>Months Between Req'd Interest Withdrawals: </b>";
  session_.DaysInYear = 366;
  EXPECT_EQ(LineWithDays("12", "1"), "<b>366</b>" + periods + "12" + between + "1<br>");
  EXPECT_EQ(LineWithDays("12", ""), "<b>366</b>" + periods + "12<br>");
  EXPECT_EQ(LineWithDays("12", "0"), "<b>366</b>" + periods + "12<br>");
  EXPECT_EQ(LineWithDays("", "1"), "<b>366</b>");
  EXPECT_EQ(LineWithDays("", ""), "<b>366</b>");
}

TEST_F(DisclosureReportFile, TheDescriptionFollowsTheSetup) {
  const auto described = [this] {
    return BuildReport({"^MainHeading^|^intcmpd^|^cmpdterm^|^intwd^"},
                       DisclosureReport(session_, {}))
        .text;
  };
  EXPECT_EQ(described(), "|Days|1|Not Required");
  session_.AcctTierB = true;
  session_.CompoundDays = false;
  session_.CompoundMonths = true;
  session_.CompoundingDays = 3;
  session_.ReqWdrwlMonths = true;
  EXPECT_EQ(described(), "TIERING Method B|Months|3|Months");
  session_.CompoundMonths = false;
  session_.CompoundYears = true;
  session_.ReqWdrwlDays = true;
  session_.AcctTierA = true;
  EXPECT_EQ(described(), "TIERING Method A|Years|3|Days");
  session_.CompoundYears = false;
  session_.CompoundNone = true;
  session_.AcctStepped = true;
  EXPECT_EQ(described(), "STEPPED RATE|None|None|Days");
}

TEST_F(DisclosureReportFile, NoAccountTypeGivesNoRow) {
  StoreRows(session_, 2, {{"1", "", "", "", "", "", "", "OK"}});
  session_.PeriodCount = session_.TotalTiers = session_.TierPeriodCounter = 1;
  EXPECT_EQ(BuildReport({"^datarow^", "end"}, DisclosureReport(session_, {})).text, "end");
}

TEST_F(DisclosureReportFile, AnInstitutionNamedLikeItsTagDoesNotHangTheBuild) {
  session_.InstitutionName = "^instname^";
  EXPECT_EQ(BuildReport({"^instname^"}, DisclosureReport(session_, {})).text, "^instname^");
}

}  // namespace
}  // namespace corvane
