#pragma once

#include <vector>

#include "statement/StatementAccount.h"

namespace corvane {

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
