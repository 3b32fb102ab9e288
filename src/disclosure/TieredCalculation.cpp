#include "disclosure/TieredCalculation.h"

#include "account/SessionRecord.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/PeriodStore.h"
#include "disclosure/ReportRows.h"
#include "formulas/RegularApy.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

/// Every tier is an account of its own, whose withdrawals have to fill its term.
constexpr std::int16_t kFirstPeriod = 1;

void StoreTierRow(SessionRecord& session, int row, int tier, double term, const std::string& rate) {
  StoreReportRow(session, row,
                 {.number = std::to_string(tier),
                  .balance = MoneyCell(session.PerBalance.At(row)),
                  .rate = rate,
                  .term = FormatTerm(term),
                  .interest = MoneyCell(session.TierInterestTotal),
                  .disclosedApy = PercentCell(session.PerDiscApy.At(row)),
                  .computedApy = PercentCell(session.ComputedApy),
                  .verdict = session.ApyVerdict});
}

std::optional<Refusal> ComputeTier(SessionRecord& session, std::int16_t tier) {
  const PeriodFigures figures = UseStoredPeriod(session, tier);
  session.PeriodNumber = tier;
  double principal = figures.balance;
  double term = figures.term;
  const auto refusal = CalcRegularApy(session, figures.disclosedApy, session.TierRate.At(tier),
                                      principal, term, figures.factor, kFirstPeriod);
  if (refusal) return refusal;
  StoreTierRow(session, tier, tier, figures.term, PercentCell(session.TierRate.At(tier)));
  return std::nullopt;
}

/// Term, factor, dates and withdrawals were typed with the first entry and hold for all.
std::optional<Refusal> ComputeTierEnd(SessionRecord& session, int entry) {
  double term = UseStoredPeriod(session, 1).term;
  const double enteredTerm = term;
  session.DisclosedApy = session.PerDiscApy.At(entry);
  session.EnteredBalance = session.PerBalance.At(entry);
  session.PeriodNumber = static_cast<std::int16_t>(TierOfEntry(entry));
  if (const auto refusal = SumTiers(session, EndOfEntry(entry))) return refusal;
  double interest = session.ComputedInterest;
  const auto refusal =
      CalcApyFromInterest(session, interest, session.Principal, term, session.DisclosedApy);
  if (refusal) return refusal;
  StoreTierRow(session, entry, session.PeriodNumber, enteredTerm, session.RateScheduleText + "%");
  return std::nullopt;
}

}  // namespace

std::optional<Refusal> ComputeTiersByMethodA(SessionRecord& session) {
  SizeReportRows(session, session.TotalTiers);
  for (std::int16_t tier = 1; tier <= session.TotalTiers; ++tier) {
    if (const auto refusal = ComputeTier(session, tier)) return refusal;
  }
  return std::nullopt;
}

std::optional<Refusal> ComputeTiersByMethodB(SessionRecord& session) {
  const int count = EntryCount(session);
  SizeReportRows(session, count);
  for (int entry = 1; entry <= count; ++entry) {
    if (const auto refusal = ComputeTierEnd(session, entry)) return refusal;
  }
  return std::nullopt;
}

}  // namespace corvane
