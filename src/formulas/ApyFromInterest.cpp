#include "formulas/ApyFromInterest.h"

#include <cmath>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/AnnualYield.h"
#include "formulas/CheckApy.h"
#include "formulas/CompoundingInterval.h"
#include "formulas/RoundValue.h"
#include "formulas/TermInterest.h"

namespace corvane {

namespace {

double TieredYearBasis(const SessionRecord& session) {
  return session.CountLeapDay || session.DaysInYear366 ? 366 : 365;
}

/// The exponent of the APY by the compounding unit, 0 where no unit is set and nothing where the
/// months cannot be counted; `term` becomes the counted term.
std::optional<double> TieredExponent(SessionRecord& session, double& term) {
  const double interval = CompoundingInterval(session);
  if (session.CompoundNone) return TieredYearBasis(session) / term;
  if (session.CompoundDays) {
    term = interval * session.EnteredTerm;
    return TieredYearBasis(session) / term;
  }
  if (session.CompoundMonths) {
    const auto days = MonthPeriodsInDays(session, term);
    if (!days) return std::nullopt;
    term *= interval;
    return (session.BeginYear % 4 == 0 ? 366 : 365) / *days;
  }
  return session.CompoundYears ? 1 / (term * interval) : 0;
}

}  // namespace

std::optional<Refusal> CalcApyFromInterest(SessionRecord& session, double& interest,
                                           double principal, double& term, double disclosedApy) {
  double counted = term;
  double rounded = interest;
  RoundValue(session, rounded, 2);
  const auto exponent = TieredExponent(session, counted);
  if (!exponent) return NotComputable();
  double apy = AnnualYield(rounded, principal, *exponent);
  if (!std::isfinite(rounded) || !std::isfinite(apy)) return NotComputable();
  interest = rounded;
  term = counted;
  session.SummaryInterest = rounded;
  session.ComputedApy = RoundValue(session, apy, 2);
  CheckApy(session, disclosedApy, apy);
  return std::nullopt;
}

}  // namespace corvane
