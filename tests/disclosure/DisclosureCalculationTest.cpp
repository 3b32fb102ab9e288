#include "disclosure/DisclosureCalculation.h"

#include <gtest/gtest.h>

#include "CaseTable.h"
#include "account/TierTable.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/PeriodArrays.h"

namespace corvane {
namespace {

std::string MoneyText(const std::string& amount) {
  return "$" + FormatGrouped2(NumericValue(amount));
}

/// Makes the next attempt with what a person would type for a row: the fields that the account
/// has, from columns of their own, of which a list has one part for each entry.
void Enter(SessionRecord& session, const CaseRow& row, std::size_t part = 0) {
  const std::pair<const char*, EntryField DisclosureEntry::*> columns[] = {
      {"apy", &DisclosureEntry::txtDiscAPY},       {"w", &DisclosureEntry::txtWdrwlPeriods},
      {"m", &DisclosureEntry::txtBtwnReqIntWdrwl}, {"month", &DisclosureEntry::txtBeginMonth},
      {"months", &DisclosureEntry::txtBeginMonth}, {"year", &DisclosureEntry::txtBeginYear},
      {"years", &DisclosureEntry::txtBeginYear},   {"balance", &DisclosureEntry::txtBal},
      {"typed", &DisclosureEntry::txtBal},         {"rate", &DisclosureEntry::txtIntRateA},
      {"rates", &DisclosureEntry::txtIntRateA},    {"term", &DisclosureEntry::txtTerm},
      {"terms", &DisclosureEntry::txtTerm},
  };
  DisclosureEntry entry = PresentEntry(session, {});
  for (const auto& [column, field] : columns) {
    if (!row.fields.contains(column) || !(entry.*field).enabled) continue;
    const auto parts = SplitAt(row.Text(column), '/');
    (entry.*field).text = parts[parts.size() > 1 ? part : 0];
  }
  if (entry.txtDailyRateFactor.enabled) entry.txtDailyRateFactor.text = session.DailyRateFactor;
  if (session.AcctStepped && part == 0) {
    entry.txtTierPerNum.text = std::to_string(row.List("terms").size());
  }
  const AttemptOutcome outcome = AttemptCalculation(session, entry);
  ASSERT_FALSE(outcome.refusal.has_value()) << outcome.refusal->text;
}

/// Gives the account of a row a tier table, its bounds and rates being joined by "/".
void StoreTiers(SessionRecord& session, const std::string& rateList, const std::string& boundList) {
  TierTable table;
  const auto rates = SplitAt(rateList, '/');
  const auto bounds = SplitAt(boundList, '/');
  table.tiers = static_cast<int>(rates.size());
  for (int tier = 1; tier <= table.tiers; ++tier) {
    const auto place = static_cast<std::size_t>(tier - 1);
    table.txtInt.Set(tier, rates[place]);
    if (tier < table.tiers) table.txt_bne.Set(tier, bounds[place]);
  }
  FillLowerBounds(table);
  EXPECT_FALSE(CheckTierTable(table).has_value());
  StoreTierTable(session, table);
  session.TotalTiers = session.TierCountSel;
}

TEST(DisclosureCalculation, RegularAccountsAndTiersByMethodAAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("regular.csv")) {
    SCOPED_TRACE(row.line);
    SessionRecord session = AccountOf(row);
    session.AcctRegular = row.Text("account") == "regular";
    session.AcctTierA = row.Text("account") == "tierA";
    if (session.AcctTierA) StoreTiers(session, row.Text("rate") + "/" + row.Text("rate"), "1");
    SizePeriodArrays(session);
    for (int entry = 1; entry <= EntryCount(session); ++entry) Enter(session, row);
    EXPECT_NEAR(session.ComputedInterest, row.Number("interest"), 1e-9);
    EXPECT_NEAR(session.ComputedApy, row.Number("apy"), 1e-9);
    EXPECT_EQ(session.TermDays, row.Number("counted"));
    EXPECT_EQ(session.ApyVerdict, "OK");
    if (!session.AcctTierA) continue;
    EXPECT_EQ(session.RptInterest.At(2), MoneyText(row.Text("interest")));
  }
}

TEST(DisclosureCalculation, SteppedAccountsAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("stepped.csv")) {
    SCOPED_TRACE(row.line);
    SessionRecord session = AccountOf(row);
    session.AcctStepped = true;
    SizePeriodArrays(session);
    const auto interests = SplitAt(row.Text("interests"), '/');
    for (std::size_t part = 0; part < interests.size(); ++part) Enter(session, row, part);
    for (std::size_t part = 0; part < interests.size(); ++part) {
      EXPECT_EQ(session.RptInterest.At(static_cast<int>(part) + 1), MoneyText(interests[part]));
    }
    EXPECT_EQ(FormatFixed2(session.ComputedInterest), row.Text("interest"));
    EXPECT_NEAR(session.ComputedApy, row.Number("apy"), 1e-9);
    EXPECT_EQ(session.TermUnits, row.Number("units"));
  }
}

TEST(DisclosureCalculation, TierEndsByMethodBAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("tiers.csv")) {
    SCOPED_TRACE(row.line);
    SessionRecord session = AccountOf(row);
    session.AcctTierB = true;
    StoreTiers(session, row.Text("rates"), row.Text("bounds"));
    SizePeriodArrays(session);
    for (int entered = 0; entered < EntryCount(session); ++entered) Enter(session, row);
    const int tier = row.Whole("tier");
    const int entry = tier == 1 ? 1 : 2 * tier - (row.Text("end") == "low" ? 2 : 1);
    EXPECT_EQ(session.RptBalance.At(entry), MoneyText(row.Text("principal")));
    EXPECT_EQ(session.RptRate.At(entry), row.Text("schedule") + "%");
    EXPECT_EQ(session.RptInterest.At(entry), MoneyText(row.Text("interest")));
    EXPECT_EQ(session.RptComputedApy.At(entry), FormatRate(row.Number("apy")) + "%");
    EXPECT_EQ(session.RptTerm.At(entry), FormatTerm(row.Number("term")));
    EXPECT_EQ(session.RptVerdict.At(entry), "OK");
  }
}

}  // namespace
}  // namespace corvane
