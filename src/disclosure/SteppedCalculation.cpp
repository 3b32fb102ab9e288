#include "disclosure/SteppedCalculation.h"

#include "account/SessionRecord.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/PeriodStore.h"
#include "disclosure/ReportRows.h"
#include "formulas/RoundValue.h"
#include "formulas/SteppedApy.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr const char* kNotYet = "N/A";

void ClearTotals(SessionRecord& session) {
  session.ComputedInterest = 0;
  session.TermUnits = 0;
  session.TierInterestTotal = 0;
  session.TierPeriodCounter = 0;
  session.Principal = session.PerBalance.At(1);
}

void StorePeriodRow(SessionRecord& session, int period, const PeriodFigures& figures,
                    double interest) {
  StoreReportRow(session, period,
                 {.number = std::to_string(period),
                  .balance = period == 1 ? MoneyCell(figures.balance) : "",
                  .rate = PercentCell(figures.rate),
                  .term = FormatTerm(figures.term),
                  .interest = MoneyCell(interest),
                  .disclosedApy = PercentCell(session.PerDiscApy.At(1)),
                  .computedApy = kNotYet,
                  .verdict = kNotYet});
}

/// Computes one period, whose interest is added to the total when its row shows more than 0.00.
std::optional<Refusal> AddPeriod(SessionRecord& session, std::int16_t period, double& total) {
  const PeriodFigures figures = UseStoredPeriod(session, period);
  const double kept = PeriodsBuildOnInterest(session) ? total : 0;
  SteppedPeriodResult result;
  const auto refusal = CalcSteppedPeriod(
      session,
      {period, figures.rate, figures.term, session.PerBalance.At(1) + kept, figures.factor},
      result);
  if (refusal) return refusal;
  session.TierInterestTotal = result.interest;
  RoundValue(session, session.TierInterestTotal, 0);
  session.TermDays = figures.term;
  session.TierPeriodCounter = period;
  session.TermUnits += result.termUnits;
  if (NumericValue(FormatFixed2(result.interest)) > 0) total += result.interest;
  StorePeriodRow(session, period, figures, result.interest);
  return std::nullopt;
}

}  // namespace

std::optional<Refusal> ComputeStepped(SessionRecord& session) {
  ClearTotals(session);
  SizeReportRows(session, EntryCount(session));
  double total = 0;
  for (std::int16_t period = 1; period <= session.PeriodCount; ++period) {
    if (const auto refusal = AddPeriod(session, period, total)) return refusal;
  }
  session.ComputedInterest = RoundValue(session, total, 0);
  session.DisclosedApy = session.PerDiscApy.At(1);
  const auto refusal = CalcSteppedApy(session, session.DisclosedApy, session.PerBalance.At(1));
  if (refusal) return refusal;
  session.RptComputedApy.Set(session.PeriodCount, PercentCell(session.ComputedApy));
  session.RptVerdict.Set(session.PeriodCount, session.ApyVerdict);
  return std::nullopt;
}

}  // namespace corvane
