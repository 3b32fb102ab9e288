#include "formulas/RegularApy.h"

#include <cmath>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/AnnualYield.h"
#include "formulas/CheckApy.h"
#include "formulas/CompoundingInterval.h"
#include "formulas/DailyRateFactor.h"
#include "formulas/RoundValue.h"
#include "formulas/TermInterest.h"

namespace corvane {

namespace {

/// 1 over the years of the term, or the days of the year over the days of the term.
double YieldExponent(SessionRecord& session, double countedTerm) {
  if (session.CompoundYears) return 1 / (CompoundingInterval(session) * countedTerm);
  return YearBasis(session) / countedTerm;
}

bool IsTiered(const SessionRecord& session) {
  return session.AcctTierA || session.AcctTierB;
}

void StoreResults(SessionRecord& session, double interest, double apy, double countedTerm) {
  session.ComputedInterest = interest;
  session.ComputedApy = apy;
  session.TermDays = countedTerm;
  if (IsTiered(session)) session.TierInterestTotal = interest;
}

}  // namespace

std::optional<Refusal> CalcRegularApy(SessionRecord& session, double disclosedApy, double rate,
                                      double& principal, double& term,
                                      const std::string& dailyRateFactor,
                                      std::int16_t firstPeriod) {
  const auto denominator = FactorDenominator(dailyRateFactor);
  if (!denominator) return std::nullopt;
  double grownPrincipal = principal;
  double countedTerm = term;
  double interest = 0;
  const TermRate termRate{rate, *denominator, firstPeriod};
  const auto refusal = CalcTermInterest(session, termRate, grownPrincipal, countedTerm, interest);
  if (refusal) return refusal;

  RoundValue(session, interest, 2);
  double apy = AnnualYield(interest, principal, YieldExponent(session, countedTerm));
  if (!std::isfinite(interest) || !std::isfinite(apy)) return NotComputable();
  RoundValue(session, apy, 2);
  if (session.CompoundDays && session.WdrwlPeriods > 1) countedTerm /= CompoundingInterval(session);

  session.DaysInYear = *denominator;
  StoreResults(session, interest, apy, countedTerm);
  CheckApy(session, disclosedApy, apy);
  if (!IsTiered(session)) principal = grownPrincipal;
  term = countedTerm;
  return std::nullopt;
}

}  // namespace corvane
