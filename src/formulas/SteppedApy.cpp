#include "formulas/SteppedApy.h"

#include <cmath>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/AnnualYield.h"
#include "formulas/CheckApy.h"
#include "formulas/CompoundingInterval.h"
#include "formulas/RoundValue.h"

namespace corvane {

namespace {

/// 1 over the years of the whole term, or the days of the year over its days.
double YieldExponent(SessionRecord& session) {
  const double interval = CompoundingInterval(session);
  if (session.CompoundYears) return 1 / (interval * session.TermUnits);
  if (session.CompoundDays) return YearBasis(session) / (interval * session.TermUnits);
  return YearBasis(session) / session.TermUnits;
}

}  // namespace

std::optional<Refusal> CalcSteppedApy(SessionRecord& session, double disclosedApy,
                                      double firstBalance) {
  double interest = session.ComputedInterest;
  RoundValue(session, interest, 2);
  const double principal = session.CompoundMonths ? firstBalance : session.Principal;
  double apy = AnnualYield(interest, principal, YieldExponent(session));
  if (!std::isfinite(interest) || !std::isfinite(apy)) return NotComputable();
  session.ComputedApy = RoundValue(session, apy, 2);
  CheckApy(session, disclosedApy, apy);
  return std::nullopt;
}

}  // namespace corvane
