#include "formulas/WithdrawalInterest.h"

#include "formulas/AnnualYield.h"
#include "formulas/DailyRate.h"
#include "formulas/TermCounting.h"

namespace corvane {

namespace {

/// Amounts from here on are rounded; smaller ones keep all their digits.
constexpr double kRoundedFrom = 0.01;

double RoundedFromACent(double value) {
  return value >= kRoundedFrom ? RoundIntermediate(value) : value;
}

TermInterest WithdrawnOnce(const AccountTerms& terms, const Deposit& deposit) {
  return {RoundIntermediate(deposit.balance * GrowthByDays(terms, deposit)),
          deposit.term * terms.compounding.length};
}

/// Days of so many months from one on: by the beginning year, or the calendar's own.
double DaysOfMonths(const AccountTerms& terms, std::chrono::year_month month, int count) {
  const bool countsLeapDay = terms.year.countsLeapDay;
  if (terms.reading.ownMonths) return MonthTermDays(month, count, countsLeapDay);
  return MonthsInDays(month, count, countsLeapDay);
}

std::chrono::year_month MonthAfter(const AccountTerms& terms, std::chrono::year_month month,
                                   int count) {
  return terms.reading.ownMonths ? month + std::chrono::months{count}
                                 : MonthInSameYear(month, count);
}

// Interest is summed by itself: as the growth of a large balance it would lose its last digits, and
// with them an exact half of a cent.

/// Interest of one withdrawal period that compounds day by day.
double InterestOfDays(double principal, double dailyRate, int days) {
  double earned = 0;
  for (; days > 0; --days) earned += dailyRate * (principal + earned);
  return earned;
}

/// Interest of one withdrawal period of so many N-month compoundings from a month on.
double InterestOfMonths(const AccountTerms& terms, double dailyRate, double principal,
                        std::chrono::year_month month, int compoundings) {
  const int length = terms.compounding.length;
  double earned = 0;
  for (; compoundings > 0; --compoundings) {
    const double days = DaysOfMonths(terms, month, length);
    earned += RoundIntermediate(dailyRate * (principal + earned) * days);
    month = MonthAfter(terms, month, length);
  }
  return earned;
}

}  // namespace

Outcome<TermInterest> WithdrawnEveryDays(const AccountTerms& terms, const Deposit& deposit) {
  const double withdrawals = deposit.withdrawals.periods;
  if (withdrawals == 1) return WithdrawnOnce(terms, deposit);
  const auto steps = StepCount(deposit.term / withdrawals);
  if (!(withdrawals > 1) || !steps) return Failure::NotComputable;
  const double length = terms.compounding.length;
  const double dailyRate = RoundedFromACent(DailyRate(deposit.rate, deposit.factorDays));
  double earned = 0;
  for (int k = 0; k < *steps; ++k) {
    earned += RoundedFromACent(dailyRate * (deposit.balance + earned) * length);
  }
  return TermInterest{earned * withdrawals, *steps * length * withdrawals};
}

Outcome<TermInterest> CompoundedByDaysWithdrawnMonthly(const AccountTerms& terms,
                                                       const Deposit& deposit, Fill fill) {
  const auto& [periods, apart] = deposit.withdrawals;
  const bool countsLeapDay = terms.year.countsLeapDay;
  if (!deposit.begin.ok() || terms.compounding.length != 1) return Failure::NotComputable;
  const auto withdrawals = StepCount(periods);
  const auto totalDays = StepCount(MonthPeriodDays(deposit.begin, periods, apart, countsLeapDay));
  if (!withdrawals || !totalDays) return Failure::NotComputable;
  if (fill == Fill::Demanded && *totalDays != deposit.term) {
    return Failure::WithdrawalPeriodsDisagree;
  }
  const double dailyRate = PeriodicRate(deposit.rate, deposit.factorDays);
  const int monthsEach = static_cast<int>(apart);
  std::chrono::year_month month = deposit.begin;
  double total = 0;
  int counted = 0;
  for (int k = 0; k<*withdrawals&& * totalDays> 0; ++k) {
    const auto days = static_cast<int>(DaysOfMonths(terms, month, monthsEach));
    total = RoundIntermediate(total + InterestOfDays(deposit.balance, dailyRate, days));
    counted += days;
    month = MonthAfter(terms, month, monthsEach);
  }
  return TermInterest{total, deposit.term + (counted - *totalDays)};
}

Outcome<TermInterest> CompoundedByMonthsWithdrawnMonthly(const AccountTerms& terms,
                                                         const Deposit& deposit, double termDays) {
  const auto& [periods, apart] = deposit.withdrawals;
  const auto withdrawals = StepCount(periods);
  const auto compoundings = StepCount(deposit.term / periods);
  if (!withdrawals || !compoundings) return Failure::NotComputable;
  const double steps = static_cast<double>(*withdrawals) * *compoundings;
  if (!StepCount(steps)) return Failure::NotComputable;
  if (apart * periods != steps * terms.compounding.length) {
    return Failure::WithdrawalPeriodsDisagree;
  }
  const double dailyRate = PeriodicRate(deposit.rate, deposit.factorDays);
  const int monthsEach = *compoundings * terms.compounding.length;
  double total = 0;
  std::chrono::year_month month = deposit.begin;
  for (int k = 0; k < *withdrawals; ++k) {
    total += InterestOfMonths(terms, dailyRate, deposit.balance, month, *compoundings);
    month = MonthAfter(terms, month, monthsEach);
  }
  return TermInterest{total, termDays};
}

}  // namespace corvane
