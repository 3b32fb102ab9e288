#include "formulas/DayInterest.h"

#include <algorithm>

#include "formulas/DailyRate.h"

namespace corvane {

std::size_t TierOfBalance(std::span<const Tier> tiers, double balance) {
  std::size_t tier = 0;
  while (tier + 1 < tiers.size() && balance > tiers[tier + 1].above) ++tier;
  return tier;
}

double RateOfDay(const StatementAccount& account, double balance, double typedRate) {
  if (account.kind == AccountKind::Stepped) return typedRate;
  if (account.kind == AccountKind::Regular) return account.rate;
  return account.tiers[TierOfBalance(account.tiers, balance)].rate;
}

DayInterest::DayInterest(const StatementAccount& account) : account_(account) {
  if (account.kind == AccountKind::Regular) {
    dailyRates_.push_back(PeriodicRate(account.rate, account.factorDays));
  }
  for (const Tier& tier : account.tiers) {
    dailyRates_.push_back(PeriodicRate(tier.rate, account.factorDays));
  }
}

double DayInterest::Of(double balance, double carried, double steppedRate) const {
  switch (account_.kind) {
    case AccountKind::Regular:
      return dailyRates_.front() * (balance + carried);
    case AccountKind::Stepped:
      return PeriodicRate(steppedRate, account_.factorDays) * (balance + carried);
    case AccountKind::TierA:
      return dailyRates_[TierOfBalance(account_.tiers, balance)] * (balance + carried);
    case AccountKind::TierB:
      break;
  }
  return OverTiers(balance + carried);
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
