#include "disclosure/DisclosureCalculation.h"

#include <gtest/gtest.h>

#include "CaseTable.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/TierTable.h"
#include "formulas/PeriodArrays.h"

namespace corvane {
namespace {

std::string MoneyText(const std::string& amount) {
  return "$" + FormatGrouped2(NumericValue(amount));
}

/// The entry that a person would type for a row, as far as the account has the fields.
DisclosureEntry Typed(const SessionRecord& session, const CaseRow& row) {
  DisclosureEntry entry = PresentEntry(session, {});
  const auto type = [](EntryField& field, const std::string& text) {
    if (field.enabled) field.text = text;
  };
  type(entry.txtDiscAPY, row.Text("apy"));
  type(entry.txtDailyRateFactor, session.DailyRateFactor);
  if (row.fields.contains("w")) type(entry.txtWdrwlPeriods, SplitAt(row.Text("w"), '/')[0]);
  type(entry.txtBtwnReqIntWdrwl, row.Text("m"));
  return entry;
}

void Attempt(SessionRecord& session, DisclosureEntry entry) {
  const AttemptOutcome outcome = AttemptCalculation(session, entry);
  ASSERT_FALSE(outcome.refusal.has_value()) << outcome.refusal->text;
}

TEST(DisclosureCalculation, RegularAccountsAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("regular.csv")) {
    if (row.Text("account") != "regular") continue;
    SCOPED_TRACE(row.line);
    SessionRecord session = AccountOf(row);
    session.AcctRegular = true;
    SizePeriodArrays(session);
    DisclosureEntry entry = Typed(session, row);
    entry.txtBeginMonth.text = row.Text("month");
    entry.txtBeginYear.text = row.Text("year");
    entry.txtBal.text = row.Text("balance");
    entry.txtIntRateA.text = row.Text("rate");
    entry.txtTerm.text = row.Text("term");
    Attempt(session, entry);
    EXPECT_NEAR(session.ComputedInterest, row.Number("interest"), 1e-9);
    EXPECT_NEAR(session.ComputedApy, row.Number("apy"), 1e-9);
    EXPECT_EQ(session.TermDays, row.Number("counted"));
    EXPECT_EQ(session.ApyVerdict, "OK");
    EXPECT_EQ(session.PeriodCount, 1);
  }
}

void TypePeriod(const CaseRow& row, std::size_t period, DisclosureEntry& entry) {
  const auto part = [&](const char* column) { return SplitAt(row.Text(column), '/')[period]; };
  if (entry.txtBeginMonth.enabled) entry.txtBeginMonth.text = part("months");
  if (entry.txtBeginYear.enabled) entry.txtBeginYear.text = part("years");
  if (entry.txtWdrwlPeriods.enabled) entry.txtWdrwlPeriods.text = part("w");
  entry.txtIntRateA.text = part("rates");
  entry.txtTerm.text = part("terms");
}

TEST(DisclosureCalculation, SteppedAccountsAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("stepped.csv")) {
    SCOPED_TRACE(row.line);
    SessionRecord session = AccountOf(row);
    session.AcctStepped = true;
    SizePeriodArrays(session);
    const auto interests = SplitAt(row.Text("interests"), '/');
    for (std::size_t period = 0; period < interests.size(); ++period) {
      DisclosureEntry entry = Typed(session, row);
      if (period == 0) entry.txtBal.text = row.Text("balance");
      if (period == 0) entry.txtTierPerNum.text = std::to_string(interests.size());
      TypePeriod(row, period, entry);
      Attempt(session, entry);
    }
    for (std::size_t period = 0; period < interests.size(); ++period) {
      EXPECT_EQ(session.RptInterest.At(static_cast<int>(period) + 1), MoneyText(interests[period]));
    }
    EXPECT_EQ(FormatFixed2(session.ComputedInterest), row.Text("interest"));
    EXPECT_NEAR(session.ComputedApy, row.Number("apy"), 1e-9);
    EXPECT_EQ(session.TermUnits, row.Number("units"));
  }
}

/// A session with the account and the tier table of a row.
SessionRecord TieredAccountOf(const CaseRow& row) {
  SessionRecord session = AccountOf(row);
  TierTable table;
  const auto rates = SplitAt(row.Text("rates"), '/');
  const auto bounds = SplitAt(row.Text("bounds"), '/');
  table.tiers = static_cast<int>(rates.size());
  for (int tier = 1; tier <= table.tiers; ++tier) {
    table.txtInt.Set(tier, rates[static_cast<std::size_t>(tier - 1)]);
    if (tier < table.tiers) table.txt_bne.Set(tier, bounds[static_cast<std::size_t>(tier - 1)]);
  }
  FillLowerBounds(table);
  EXPECT_FALSE(CheckTierTable(table).has_value());
  StoreTierTable(session, table);
  session.TotalTiers = session.TierCountSel;
  return session;
}

int EntryOfTierEnd(const CaseRow& row) {
  const int tier = row.Whole("tier");
  return tier == 1 ? 1 : 2 * tier - (row.Text("end") == "low" ? 2 : 1);
}

void EnterAllTierEnds(SessionRecord& session, const CaseRow& row) {
  for (int entered = 0; entered < EntryCount(session); ++entered) {
    DisclosureEntry entry = Typed(session, row);
    if (entry.txtBeginMonth.enabled) entry.txtBeginMonth.text = row.Text("month");
    if (entry.txtBeginYear.enabled) entry.txtBeginYear.text = row.Text("year");
    if (entry.txtTerm.enabled) entry.txtTerm.text = row.Text("term");
    if (entry.txtBal.enabled) entry.txtBal.text = row.Text("typed");
    Attempt(session, entry);
  }
}

TEST(DisclosureCalculation, TierEndsByMethodBAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("tiers.csv")) {
    SCOPED_TRACE(row.line);
    SessionRecord session = TieredAccountOf(row);
    session.AcctTierB = true;
    SizePeriodArrays(session);
    EnterAllTierEnds(session, row);
    const int entry = EntryOfTierEnd(row);
    EXPECT_EQ(session.RptBalance.At(entry), MoneyText(row.Text("principal")));
    EXPECT_EQ(session.RptRate.At(entry), row.Text("schedule") + "%");
    EXPECT_EQ(session.RptInterest.At(entry), MoneyText(row.Text("interest")));
    EXPECT_EQ(session.RptComputedApy.At(entry), FormatRate(row.Number("apy")) + "%");
    EXPECT_EQ(session.RptVerdict.At(entry), "OK");
  }
}

}  // namespace
}  // namespace corvane
