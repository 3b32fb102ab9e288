#include "formulas/DayInterest.h"

#include <algorithm>

#include "formulas/DayRate.h"

namespace corvane {

DayInterest::DayInterest(const StatementAccount& account) : account_(account) {
  if (account.kind == RateKind::Regular) {
    dailyRates_.push_back(PeriodicRate(account.rate, account.daysInYear));
  }
  for (const BalanceTier& tier : account.tiers) {
    dailyRates_.push_back(PeriodicRate(tier.rate, account.daysInYear));
  }
}

double DayInterest::Of(double balance, double carried, double steppedRate) const {
  switch (account_.kind) {
    case RateKind::Regular:
      return dailyRates_.front() * (balance + carried);
    case RateKind::Stepped:
      return PeriodicRate(steppedRate, account_.daysInYear) * (balance + carried);
    case RateKind::TierA:
      return dailyRates_[TierOfBalance(account_.tiers, balance)] * (balance + carried);
    case RateKind::TierB:
      return OverTiers(balance + carried);
  }
  return 0;
}

double DayInterest::OverTiers(double balance) const {
  const auto& tiers = account_.tiers;
  double interest = 0;
  // From the highest tier down; what a tier takes is what the tiers below it no longer hold.
  for (std::size_t tier = tiers.size(); tier-- > 0;) {
    interest += dailyRates_[tier] * std::max(balance - tiers[tier].above, 0.0);
    balance = std::min(balance, tiers[tier].above);
  }
  return interest;
}

}  // namespace corvane
