#include "formulas/DayRate.h"

#include "formulas/RoundValue.h"

namespace corvane {

double PeriodicRate(double ratePercent, double daysInYear) {
  return RoundToDecimals(ratePercent / 100 / daysInYear, 15);
}

std::size_t TierOfBalance(const std::vector<BalanceTier>& tiers, double balance) {
  std::size_t tier = 0;
  while (tier + 1 < tiers.size() && balance > tiers[tier + 1].above) ++tier;
  return tier;
}

double RateOfDay(const StatementAccount& account, double balance, double typedRate) {
  if (account.kind == RateKind::Stepped) return typedRate;
  if (account.kind == RateKind::Regular) return account.rate;
  return account.tiers[TierOfBalance(account.tiers, balance)].rate;
}

}  // namespace corvane
