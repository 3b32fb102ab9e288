#include "formulas/WithdrawalInterest.h"

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/AnnualYield.h"
#include "formulas/CompoundingInterval.h"
#include "formulas/DailyRateFactor.h"
#include "formulas/RoundValue.h"
#include "formulas/StepCount.h"
#include "formulas/TermCounting.h"

namespace corvane {

namespace {

/// Amounts from here on are rounded; smaller ones keep all their digits.
constexpr double kRoundedFrom = 0.01;

double RoundedFromACent(const SessionRecord& session, double value) {
  return value >= kRoundedFrom ? RoundValue(session, value, 0) : value;
}

double DaysFrom(const SessionRecord& session, int month, double months) {
  return CountMonthPeriodDays(month, session.BeginYear, 1, months, session.CountLeapDay);
}

/// Interest of one withdrawal period that compounds step by step at a rate per step.
double InterestOfSteps(double principal, double ratePerStep, int steps) {
  double grown = principal;
  for (; steps > 0; --steps) grown = ratePerStep * grown + grown;
  return grown - principal;
}

/// Interest of one withdrawal period of so many N-month compoundings; `month` moves past them.
double InterestOfMonths(SessionRecord& session, double dailyRate, double principal,
                        int compoundings, int& month) {
  const double interval = CompoundingInterval(session);
  double grown = principal;
  for (; compoundings > 0; --compoundings) {
    double interest = dailyRate * grown * DaysFrom(session, month, interval);
    grown += RoundValue(session, interest, 0);
    month = MonthAfter(month, static_cast<int>(interval));
  }
  return grown - principal;
}

}  // namespace

std::optional<Refusal> CalcDailyInterestDayWithdrawals(SessionRecord& session, double rate,
                                                       double denominator, double& principal,
                                                       double& term, double& interest) {
  const double withdrawals = session.WdrwlPeriods;
  const double interval = CompoundingInterval(session);
  const double dailyRate = RoundedFromACent(session, DailyRate(rate, denominator));
  if (withdrawals < 1) return std::nullopt;
  if (withdrawals == 1) {
    term *= interval;
    interest = principal * GrowthOf(DailyRate(rate, denominator), term);
    RoundValue(session, interest, 0);
    return std::nullopt;
  }
  // In single precision the quotient of a whole number of periods never falls just short of it.
  const auto steps = StepCount(static_cast<float>(term / withdrawals));
  if (!steps) return NotComputable();
  double grown = principal;
  for (int k = 0; k < *steps; ++k) {
    grown += RoundedFromACent(session, dailyRate * grown * interval);
  }
  interest = (grown - principal) * withdrawals;
  principal += interest;
  term = *steps * interval * withdrawals;
  return std::nullopt;
}

std::optional<Refusal> CalcDailyInterestMonthWithdrawals(SessionRecord& session, double dailyRate,
                                                         double principal, double term,
                                                         double& interest,
                                                         std::int16_t firstPeriod) {
  const double monthsEach = session.BtwnReqIntWdrwl;
  const auto withdrawals = StepCount(session.WdrwlPeriods);
  const auto totalDays =
      StepCount(CountMonthPeriodDays(session.BeginMonth, session.BeginYear, session.WdrwlPeriods,
                                     monthsEach, session.CountLeapDay));
  if (!withdrawals || !totalDays) return NotComputable();
  if (firstPeriod == 1 && *totalDays != term) return WithdrawalPeriodsDisagree();
  const double ratePerStep = dailyRate * CompoundingInterval(session);
  int month = session.BeginMonth;
  double total = 0;
  for (int k = 0; k<*withdrawals&& * totalDays> 0; ++k) {
    const int days = static_cast<int>(DaysFrom(session, month, monthsEach));
    total += InterestOfSteps(principal, ratePerStep, days);
    RoundValue(session, total, 0);
    month = MonthAfter(month, static_cast<int>(monthsEach));
  }
  interest = total;
  return std::nullopt;
}

std::optional<Refusal> CalcMonthlyInterestWithdrawals(SessionRecord& session, double dailyRate,
                                                      double principal, double& interest) {
  const auto withdrawals = StepCount(session.WdrwlPeriods);
  const auto compoundings = StepCount(session.EnteredTerm / session.WdrwlPeriods);
  if (!withdrawals || !compoundings) return NotComputable();
  const double steps = static_cast<double>(*withdrawals) * *compoundings;
  if (!StepCount(steps)) return NotComputable();
  if (session.BtwnReqIntWdrwl * session.WdrwlPeriods != steps * CompoundingInterval(session)) {
    return WithdrawalPeriodsDisagree();
  }
  int month = session.BeginMonth;
  double total = 0;
  for (int k = 0; k < *withdrawals; ++k) {
    total += InterestOfMonths(session, dailyRate, principal, *compoundings, month);
  }
  interest = total;
  return std::nullopt;
}

}  // namespace corvane
