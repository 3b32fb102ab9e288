#include "formulas/TermInterest.h"

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/AnnualYield.h"
#include "formulas/CompoundingInterval.h"
#include "formulas/DailyRateFactor.h"
#include "formulas/RoundValue.h"
#include "formulas/TermCounting.h"
#include "formulas/WithdrawalInterest.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

double RoundedDailyRate(const SessionRecord& session, const TermRate& rate) {
  double dailyRate = DailyRate(rate.percent, rate.denominator);
  return RoundValue(session, dailyRate, 0);
}

/// Regulation DD, Appendix A, Part I.A. The daily rate compounds once a day whatever N is.
std::optional<Refusal> InterestByDays(SessionRecord& session, const TermRate& rate,
                                      double& principal, double& term, double& interest) {
  if (session.ReqWdrwlDays) {
    return CalcDailyInterestDayWithdrawals(session, rate.percent, rate.denominator, principal, term,
                                           interest);
  }
  if (session.ReqWdrwlMonths) {
    return CalcDailyInterestMonthWithdrawals(session, RoundedDailyRate(session, rate), principal,
                                             term, interest, rate.firstPeriod);
  }
  term *= CompoundingInterval(session);
  interest = principal * GrowthOf(DailyRate(rate.percent, rate.denominator), term);
  return std::nullopt;
}

/// Without withdrawals the periods of the term are its days over the days of one period, so that
/// the months' lengths count.
std::optional<Refusal> InterestByMonths(SessionRecord& session, const TermRate& rate,
                                        double principal, double& term, double& interest) {
  const auto days = MonthPeriodsInDays(session, term);
  if (!days) return NotComputable();
  if (session.WdrwlPeriods > 0) {
    const auto refusal = CalcMonthlyInterestWithdrawals(session, RoundedDailyRate(session, rate),
                                                        principal, interest);
    if (refusal) return refusal;
  } else {
    const double periodsPerYear = 12 / CompoundingInterval(session);
    interest = principal * GrowthOf(rate.percent * 0.01 / periodsPerYear,
                                    *days / rate.denominator * periodsPerYear);
  }
  term = *days;
  return std::nullopt;
}

}  // namespace

std::optional<double> MonthPeriodsInDays(SessionRecord& session, double periods) {
  const auto months = WholeNumber(CompoundingInterval(session) * periods);
  if (!months) return std::nullopt;
  return MonthTermDays(session.BeginMonth, session.BeginYear, *months, session.CountLeapDay);
}

std::optional<Refusal> CalcTermInterest(SessionRecord& session, const TermRate& rate,
                                        double& principal, double& term, double& interest) {
  const double interval = CompoundingInterval(session);
  if (session.CompoundDays) return InterestByDays(session, rate, principal, term, interest);
  if (session.CompoundMonths) return InterestByMonths(session, rate, principal, term, interest);
  if (session.CompoundNone) interest = rate.percent / 100 * principal * (term / rate.denominator);
  if (session.CompoundYears) interest = principal * GrowthOf(rate.percent * 0.01 * interval, term);
  return std::nullopt;
}

}  // namespace corvane
