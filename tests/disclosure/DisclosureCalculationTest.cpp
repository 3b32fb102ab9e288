#include "disclosure/DisclosureCalculation.h"

#include <gtest/gtest.h>

#include "CaseTable.h"
#include "disclosure/EntrySequence.h"

namespace corvane {
namespace {

DisclosureCheck CheckOf(const CaseRow& row, AccountKind kind) {
  const AccountTerms terms = TermsOf(row);
  DisclosureCheck check;
  check.setup = {.kind = kind,
                 .compounding = terms.compounding.unit,
                 .txtDailyCompounding = {.text = row.Text("n")},
                 .withdrawal = terms.withdrawal,
                 .year = terms.year};
  return check;
}

/// Makes the next attempt with what a person would type for a row: the fields that the account
/// has, from columns of their own, of which a list has one part for each entry.
void Enter(DisclosureCheck& check, const CaseRow& row, std::size_t part = 0) {
  const std::pair<const char*, Field DisclosureEntry::*> columns[] = {
      {"apy", &DisclosureEntry::txtDiscAPY},       {"w", &DisclosureEntry::txtWdrwlPeriods},
      {"m", &DisclosureEntry::txtBtwnReqIntWdrwl}, {"month", &DisclosureEntry::txtBeginMonth},
      {"months", &DisclosureEntry::txtBeginMonth}, {"year", &DisclosureEntry::txtBeginYear},
      {"years", &DisclosureEntry::txtBeginYear},   {"balance", &DisclosureEntry::txtBal},
      {"typed", &DisclosureEntry::txtBal},         {"rate", &DisclosureEntry::txtIntRateA},
      {"rates", &DisclosureEntry::txtIntRateA},    {"term", &DisclosureEntry::txtTerm},
      {"terms", &DisclosureEntry::txtTerm},
  };
  DisclosureEntry entry = PresentEntry(check);
  for (const auto& [column, field] : columns) {
    if (!row.fields.contains(column) || !(entry.*field).enabled) continue;
    const auto parts = SplitAt(row.Text(column), '/');
    (entry.*field).text = parts[parts.size() > 1 ? part : 0];
  }
  if (entry.txtDailyRateFactor.enabled) entry.txtDailyRateFactor.text = "1/" + row.Text("factor");
  if (check.setup.kind == AccountKind::Stepped && part == 0) {
    entry.txtTierPerNum.text = std::to_string(row.List("terms").size());
  }
  const AttemptOutcome outcome = AttemptCalculation(check, entry);
  ASSERT_FALSE(outcome.refusal.has_value()) << outcome.refusal->text;
}

/// A tier table, its bounds and rates being joined by "/".
TierTable Tiers(const std::string& rateList, const std::string& boundList) {
  TierTable table;
  for (const auto& rate : SplitAt(rateList, '/')) table.Of(++table.count).rate = rate;
  int tier = 0;
  for (const auto& bound : SplitAt(boundList, '/')) table.Of(++tier).notExceeding = bound;
  EXPECT_FALSE(CheckTierTable(table).has_value());
  return table;
}

TEST(DisclosureCalculation, RegularAccountsAndTiersByMethodAAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("regular.csv")) {
    SCOPED_TRACE(row.line);
    const bool tiered = row.Text("account") == "tierA";
    DisclosureCheck check = CheckOf(row, tiered ? AccountKind::TierA : AccountKind::Regular);
    if (tiered) check.tiers = Tiers(row.Text("rate") + "/" + row.Text("rate"), "1");
    for (int entry = 1; entry <= (tiered ? 2 : 1); ++entry) Enter(check, row);
    ASSERT_EQ(check.result->rows.size(), tiered ? 2u : 1u);
    for (const ResultRow& shown : check.result->rows) {
      EXPECT_NEAR(shown.interest, row.Number("interest"), 1e-9);
      EXPECT_NEAR(*shown.apy, row.Number("apy"), 1e-9);
      EXPECT_EQ(shown.verdict, Verdict::Ok);
    }
  }
}

TEST(DisclosureCalculation, SteppedAccountsAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("stepped.csv")) {
    SCOPED_TRACE(row.line);
    DisclosureCheck check = CheckOf(row, AccountKind::Stepped);
    const auto interests = row.List("interests");
    for (std::size_t part = 0; part < interests.size(); ++part) Enter(check, row, part);
    const auto& rows = check.result->rows;
    for (std::size_t part = 0; part < interests.size(); ++part) {
      EXPECT_EQ(FormatFixed2(rows[part].interest), FormatFixed2(interests[part]));
      EXPECT_EQ(rows[part].verdict.has_value(), part + 1 == interests.size());
    }
    EXPECT_NEAR(check.result->interest, row.Number("interest"), 1e-9);
    EXPECT_NEAR(*rows.back().apy, row.Number("apy"), 1e-9);
    check.entries.back().txtDailyRateFactor.text = "1/360";
    EXPECT_EQ(ResultSoFar(check)->factorDays, 360) << "of the newest period";
  }
}

TEST(DisclosureCalculation, TierEndsByMethodBAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("tiers.csv")) {
    SCOPED_TRACE(row.line);
    DisclosureCheck check = CheckOf(row, AccountKind::TierB);
    check.tiers = Tiers(row.Text("rates"), row.Text("bounds"));
    for (int entered = 0; entered < EntryCount(check); ++entered) Enter(check, row);
    const int tier = row.Whole("tier");
    const int entry = tier == 1 ? 1 : 2 * tier - (row.Text("end") == "low" ? 2 : 1);
    const ResultRow& shown = check.result->rows.at(static_cast<std::size_t>(entry - 1));
    EXPECT_NEAR(*shown.balance, row.Number("principal"), 1e-9);
    EXPECT_EQ(shown.rates.size(), static_cast<std::size_t>(tier));
    EXPECT_NEAR(shown.interest, row.Number("interest"), 1e-9);
    EXPECT_NEAR(*shown.apy, row.Number("apy"), 1e-9);
    EXPECT_EQ(shown.verdict, Verdict::Ok);
  }
}

}  // namespace
}  // namespace corvane
