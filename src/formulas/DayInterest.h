#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "formulas/StatementAccount.h"

namespace corvane {

/// The position (0 for tier 1) of the tier that holds the balance. A balance equal to a bound
/// belongs to the lower tier; a balance below 0 to the first.
std::size_t TierOfBalance(std::span<const Tier> tiers, double balance);

/// The annual rate, in percent, that the day list shows beside a balance: the account's rate, or
/// the rate of the tier that holds the balance. A stepped account's rate of the day is typed, so
/// that `typedRate` stays.
double RateOfDay(const StatementAccount& account, double balance, double typedRate);

/// What a balance earns in one day. The daily rates of the account and its tiers are worked out
/// once, for all days. The account must outlive it.
class DayInterest {
 public:
  explicit DayInterest(const StatementAccount& account);

  /// The interest of a day, unrounded. `carried` is earlier interest that earns on this day too:
  /// method A takes its tier by the balance alone, method B splits balance and carried interest
  /// together. `steppedRate` is the day's annual rate in percent, used for stepped accounts only.
  double Of(double balance, double carried, double steppedRate) const;

 private:
  double OverTiers(double balance) const;

  const StatementAccount& account_;
  std::vector<double> dailyRates_;  ///< one per tier; a single one for a regular account
};

}  // namespace corvane
