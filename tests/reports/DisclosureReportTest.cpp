#include "reports/DisclosureReport.h"

#include <gtest/gtest.h>

#include "reports/GoldenFile.h"

namespace corvane {
namespace {

using enum Verdict;

ReportContent ContentOf(const DisclosureCheck& check) {
  return DisclosureReport({"First & Farmers' Bank", "12 Month <CD>", "J. M\xC3\xBCller", "unused"},
                          check, *ParseDate("03-07-2024"));
}

DisclosureCheck CheckOf(std::optional<AccountKind> kind, std::vector<ResultRow> rows) {
  DisclosureCheck check;
  check.setup.kind = kind;
  check.entries.resize(rows.size());
  check.result = {.rows = std::move(rows)};
  return check;
}

Rows FilledLines(const std::string& line, const DisclosureCheck& check) {
  return FillTemplate({line}, ContentOf(check)).lines;
}

// $1,000 at 5 %, daily, with 12 monthly withdrawals in 365 days: 50.10 and 5.01.
TEST(DisclosureReport, RegularShowsWhatWasTyped) {
  DisclosureCheck check =
      CheckOf(AccountKind::Regular, {{1, {}, {5}, 365, 50.1, 5.13, 5.01, Violation}});
  check.setup.withdrawal = Unit::Months;
  DisclosureEntry& entry = check.entries.front();
  entry.txtDiscAPY.text = "5.13";
  entry.txtBal.text = " 1000.00";
  entry.txtIntRateA.text = "5.00 ";
  entry.txtTerm.text = " 365 ";
  entry.txtWdrwlPeriods.text = "12";
  entry.txtBtwnReqIntWdrwl.text = "1";
  ExpectReport("disclosure_template.txt", "disclosure_regular.html", ContentOf(check));
  ExpectShippedReport(kDisclosureReport, "disclosure_shipped.html", ContentOf(check));
  check.result->rows.front().verdict = Ok;
  EXPECT_TRUE(FilledLines("^datarow^", check).front().ends_with("\"#000000\">OK</TD></TR>"));
}

DisclosureCheck SteppedCheck() {
  return CheckOf(AccountKind::Stepped, {{1, 1000, {5}, 91, 12.54, 5.45, {}, {}},
                                        {2, {}, {5.5}, 92, 14.13, 5.45, 5.45, Ok},
                                        {3, {}, {5.5}, 92, 14.13, 5.45, 5.39, Violation}});
}

TEST(DisclosureReport, ASteppedAccountHasARowMoreUntilItsLastPeriod) {
  DisclosureCheck check = SteppedCheck();
  check.entries.front().txtTierPerNum.text = "5";
  ExpectReport("disclosure_template.txt", "disclosure_stepped.html", ContentOf(check));
  for (const auto& [periods, rows] : {std::pair{"4", 4u}, std::pair{"3", 3u}}) {
    check.entries.front().txtTierPerNum.text = periods;
    EXPECT_EQ(FilledLines("^datarow^", check).size(), rows) << periods;
  }
}

// Regulation DD's tiers: 5.25 % to $2,500, 5.50 % to $15,000.
TEST(DisclosureReport, TiersShowTheirScheduleByMethodBAndTheirRateByMethodA) {
  DisclosureCheck check =
      CheckOf(AccountKind::TierB, {{1, 2500, {5.25}, 365, 134.75, 5.39, 5.39, Ok},
                                   {2, 2500.01, {5.25, 5.5}, 365, 134.75, 5.39, 5.39, Ok},
                                   {2, 15000, {5.25, 5.5}, 365, 841.45, 5.39, 5.61, Violation}});
  ExpectReport("disclosure_template.txt", "disclosure_tier_b.html", ContentOf(check));
  check = CheckOf(AccountKind::TierA, {{2, 15000, {5.5}, .5, 1.2, 5.65, 5.65, Ok}});
  EXPECT_EQ(FilledLines("^datarow^", check).front(),
            "<TR align=center><TD>2</TD><TD>$15,000.00</TD><TD>5.50%</TD><TD>.50</TD>"
            "<TD>$1.20</TD><TD>5.65%</TD><TD>5.65%</TD><TD><Font Color=\"#000000\">OK</TD></TR>");
}

TEST(DisclosureReport, TheNewestPeriodsWithdrawalsFollowTheDaysOfTheFactor) {
  DisclosureCheck check = SteppedCheck();
  check.result->factorDays = 366;
  check.entries.front().txtWdrwlPeriods.text = "3";
  EXPECT_EQ(FilledLines("<b>^drf^</b>", check), Rows{"<b>366</b>"});
  for (const char* apart : {"", "0"}) {
    check.entries.back().txtWdrwlPeriods.text = "12";
    check.entries.back().txtBtwnReqIntWdrwl.text = apart;
    EXPECT_EQ(FilledLines("<b>^drf^</b>", check),
              Rows{"<b>366</b><br><b>Required Interest Withdrawals: </b>12<br>"});
  }
}

TEST(DisclosureReport, TheDescriptionFollowsTheSetup) {
  const struct {
    AccountKind kind;
    Unit compounding, withdrawal;
    const char* expected;
  } cases[] = {
      {AccountKind::TierB, Unit::Months, Unit::Months, "TIERING Method B|Months|3|Months"},
      {AccountKind::TierA, Unit::Years, Unit::Days, "TIERING Method A|Years|3|Days"},
      {AccountKind::Regular, Unit::None, Unit::None, "REGULAR RATE|None|None|Not Required"},
  };
  for (const auto& c : cases) {
    DisclosureCheck check = CheckOf(c.kind, {{1, 1000, {5}, 365, 50, 5, 5, Ok}});
    check.setup.compounding = c.compounding;
    check.setup.txtDailyCompounding.text = "3";
    check.setup.withdrawal = c.withdrawal;
    EXPECT_EQ(FilledLines("^MainHeading^|^intcmpd^|^cmpdterm^|^intwd^", check), Rows{c.expected});
  }
}

}  // namespace
}  // namespace corvane
