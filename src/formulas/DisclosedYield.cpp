#include "formulas/DisclosedYield.h"

#include <algorithm>

#include "formulas/DailyRate.h"
#include "formulas/TermInterest.h"

namespace corvane {

namespace {

constexpr double kDaysOfACompoundingYear = 365;

/// Compounding every N years, year by year.
Outcome<TermInterest> InterestByYears(const AccountTerms& terms, const Deposit& deposit) {
  const auto periods = StepCount(deposit.term);
  if (!periods || !(deposit.factorDays > 0)) return Failure::NotComputable;
  const double ratePerPeriod = PeriodicRate(deposit.rate, deposit.factorDays) *
                               kDaysOfACompoundingYear * terms.compounding.length;
  double earned = 0;
  for (int k = 0; k < *periods; ++k) {
    earned += RoundIntermediate((deposit.balance + earned) * ratePerPeriod);
  }
  return TermInterest{earned, deposit.term};
}

Outcome<TermInterest> InterestOfPeriod(const AccountTerms& terms, Deposit period, double balance,
                                       Fill fill) {
  period.balance = balance;
  const auto earned = terms.compounding.unit == Unit::Years ? InterestByYears(terms, period)
                                                            : InterestOfTerm(terms, period, fill);
  const auto* found = std::get_if<TermInterest>(&earned);
  return found && !IsAmount(found->interest) ? Failure::NotComputable : earned;
}

bool PeriodsBuildOnInterest(const AccountTerms& terms) {
  return terms.compounding.unit != Unit::None && terms.withdrawal == Unit::None;
}

/// The part of a balance that lies in the tier at a position, kept to six decimals: the difference
/// of two large bounds carries binary noise.
double ShareOfTier(std::span<const Tier> tiers, std::size_t k, double balance) {
  const double end = k + 1 < tiers.size() ? std::min(balance, tiers[k + 1].above) : balance;
  return RoundToDecimals(end - tiers[k].above, 6);
}

}  // namespace

Outcome<Yield> RegularYield(const AccountTerms& terms, const Deposit& deposit) {
  const auto earned = InterestOfTerm(terms, deposit, Fill::Demanded);
  if (const auto failure = FailureOf(earned)) return *failure;
  const auto& [interest, length] = std::get<TermInterest>(earned);
  return YieldOf(terms.reading, interest, deposit.balance,
                 YieldExponent(terms.compounding, terms.year.days, length));
}

Outcome<SteppedYield> SteppedYieldOf(const AccountTerms& terms, double balance,
                                     std::span<const Deposit> periods) {
  SteppedYield result;
  double total = 0;
  double length = 0;
  for (const Deposit& period : periods) {
    const Fill fill = result.interest.empty() ? Fill::Demanded : Fill::Open;
    const double kept = PeriodsBuildOnInterest(terms) ? total : 0;
    const auto earned = InterestOfPeriod(terms, period, balance + kept, fill);
    if (const auto failure = FailureOf(earned)) return *failure;
    const auto& [interest, counted] = std::get<TermInterest>(earned);
    result.interest.push_back(interest);
    length += counted;
    total += interest;
  }
  const auto whole = YieldOf(terms.reading, RoundIntermediate(total), balance,
                             YieldExponent(terms.compounding, terms.year.days, length));
  if (const auto failure = FailureOf(whole)) return *failure;
  result.whole = std::get<Yield>(whole);
  return result;
}

Outcome<Yield> TieredYield(const AccountTerms& terms, std::span<const Tier> tiers,
                           const Deposit& reaching) {
  double principal = 0;
  double interest = 0;
  double length = 0;
  for (std::size_t k = 0; k < tiers.size() && tiers[k].above < reaching.balance; ++k) {
    Deposit part = reaching;
    part.balance = ShareOfTier(tiers, k, reaching.balance);
    part.rate = tiers[k].rate;
    const auto earned = InterestOfTerm(terms, part, Fill::Demanded);
    if (const auto failure = FailureOf(earned)) return *failure;
    principal += part.balance;
    interest += std::get<TermInterest>(earned).interest;
    length = std::get<TermInterest>(earned).length;
  }
  return YieldOf(terms.reading, interest, principal,
                 YieldExponent(terms.compounding, YearDaysOfMethodB(terms, reaching), length));
}

int YearDaysOfMethodB(const AccountTerms& terms, const Deposit& reaching) {
  if (terms.reading.ownYear) return terms.year.days;
  if (terms.compounding.unit == Unit::Months) {
    return static_cast<int>(reaching.begin.year()) % 4 == 0 ? 366 : 365;
  }
  return terms.year.countsLeapDay ? 366 : terms.year.days;
}

Outcome<CompositeRate> CompositeRateOf(const AccountTerms& terms,
                                       std::span<const Deposit> periods) {
  CompositeRate composite;
  for (Deposit period : periods) {
    period.balance = 1;
    const auto earned = InterestOfTerm(terms, period, Fill::Open);
    if (const auto failure = FailureOf(earned)) return *failure;
    const double days = std::get<TermInterest>(earned).length;
    composite.percent += period.rate * days;
    composite.days += days;
  }
  composite.percent /= composite.days;
  return composite;
}

}  // namespace corvane
