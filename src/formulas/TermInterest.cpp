#include "formulas/TermInterest.h"

#include <cmath>

#include "formulas/AnnualYield.h"
#include "formulas/DailyRate.h"
#include "formulas/TermCounting.h"
#include "formulas/WithdrawalInterest.h"

namespace corvane {

namespace {

constexpr double kMostSteps = 1e6;
constexpr double kMostMonths = 32767;

Outcome<TermInterest> InterestByDays(const AccountTerms& terms, const Deposit& deposit, Fill fill) {
  if (terms.withdrawal == Unit::Days) return WithdrawnEveryDays(terms, deposit);
  if (terms.withdrawal == Unit::Months)
    return CompoundedByDaysWithdrawnMonthly(terms, deposit, fill);
  return TermInterest{deposit.balance * GrowthByDays(terms, deposit),
                      deposit.term * terms.compounding.length};
}

/// Without withdrawals the periods of the term are its days over the days of one period, so that
/// the months' lengths count.
Outcome<TermInterest> InterestByMonths(const AccountTerms& terms, const Deposit& deposit) {
  const double months = RoundToDecimals(terms.compounding.length * deposit.term, 0);
  if (!deposit.begin.ok() || !(months <= kMostMonths)) return Failure::NotComputable;
  const int days = MonthTermDays(deposit.begin, static_cast<int>(months), terms.year.countsLeapDay);
  if (terms.withdrawal == Unit::Months) {
    return CompoundedByMonthsWithdrawnMonthly(terms, deposit, days);
  }
  const double periodsPerYear = 12.0 / terms.compounding.length;
  const double periods = days / deposit.factorDays * periodsPerYear;
  return TermInterest{deposit.balance * GrowthOf(deposit.rate * 0.01 / periodsPerYear, periods),
                      static_cast<double>(days)};
}

bool IsUsable(const AccountTerms& terms, const Deposit& deposit) {
  return terms.compounding.length >= 1 && deposit.balance > 0 && deposit.term > 0 &&
         deposit.factorDays > 0;
}

}  // namespace

Outcome<TermInterest> InterestOfTerm(const AccountTerms& terms, const Deposit& deposit, Fill fill) {
  if (!IsUsable(terms, deposit)) return Failure::NotComputable;
  const auto& [balance, rate, term, factorDays, begin, withdrawals] = deposit;
  switch (terms.compounding.unit) {
    case Unit::None:
      return TermInterest{rate / 100 * balance * (term / factorDays), term};
    case Unit::Days:
      return InterestByDays(terms, deposit, fill);
    case Unit::Months:
      return InterestByMonths(terms, deposit);
    case Unit::Years:
      break;
  }
  return TermInterest{balance * GrowthOf(rate * 0.01 * terms.compounding.length, term), term};
}

double GrowthByDays(const AccountTerms& terms, const Deposit& deposit) {
  const double rate = DailyRate(deposit.rate, deposit.factorDays);
  const int length = terms.compounding.length;
  return terms.reading.compoundsByPeriods ? GrowthOf(rate * length, deposit.term)
                                          : GrowthOf(rate, deposit.term * length);
}

std::optional<int> StepCount(double limit) {
  if (!(limit <= kMostSteps)) return std::nullopt;
  return limit < 1 ? 0 : static_cast<int>(limit);
}

}  // namespace corvane
