#include "formulas/SteppedPeriod.h"

#include <cmath>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/CompoundingInterval.h"
#include "formulas/DailyRateFactor.h"
#include "formulas/RoundValue.h"
#include "formulas/StepCount.h"
#include "formulas/TermInterest.h"

namespace corvane {

namespace {

constexpr double kDaysOfACompoundingYear = 365;

/// By years the grown balance tells the interest, because the figure itself is rounded to cents.
std::optional<Refusal> InterestByYears(SessionRecord& session, const TermRate& rate, double balance,
                                       double& interest) {
  double grown = balance;
  double rounded = 0;
  const auto refusal = CalcYearlyInterest(session, rate.percent, rate.denominator, grown, rounded);
  if (!refusal) interest = grown - balance;
  return refusal;
}

}  // namespace

std::optional<Refusal> CalcSteppedPeriod(SessionRecord& session, const SteppedPeriod& period,
                                         SteppedPeriodResult& result) {
  const auto denominator = FactorDenominator(period.dailyRateFactor);
  if (!denominator) return NotComputable();
  session.EnteredTerm = period.term;
  const TermRate rate{period.rate, *denominator, period.number};
  double balance = period.balance;
  double counted = period.term;
  double interest = 0;
  const auto refusal = session.CompoundYears
                           ? InterestByYears(session, rate, balance, interest)
                           : CalcTermInterest(session, rate, balance, counted, interest);
  if (refusal) return refusal;
  if (!std::isfinite(interest)) return NotComputable();
  result = {interest, session.CompoundMonths ? counted : period.term};
  return std::nullopt;
}

bool PeriodsBuildOnInterest(const SessionRecord& session) {
  return !session.CompoundNone && !session.ReqWdrwlDays && !session.ReqWdrwlMonths;
}

std::optional<Refusal> CalcYearlyInterest(SessionRecord& session, double rate, double denominator,
                                          double& principal, double& interest) {
  const auto periods = StepCount(session.EnteredTerm);
  if (!periods) return NotComputable();
  double dailyRate = DailyRate(rate, denominator);
  RoundValue(session, dailyRate, 0);
  const double ratePerPeriod = dailyRate * kDaysOfACompoundingYear * CompoundingInterval(session);
  double grown = principal;
  for (int k = 0; k < *periods; ++k) {
    double periodInterest = grown * ratePerPeriod;
    grown += RoundValue(session, periodInterest, 0);
  }
  interest = grown - principal;
  RoundValue(session, interest, 2);
  principal = grown;
  return std::nullopt;
}

}  // namespace corvane
