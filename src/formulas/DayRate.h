#pragma once

#include <cstddef>
#include <vector>

#include "statement/StatementAccount.h"

namespace corvane {

/// The rate of one day as a fraction: percent a year / 100 / the denominator of the daily rate
/// factor, kept to 15 decimals.
double PeriodicRate(double ratePercent, double daysInYear);

/// The position (0 for tier 1) of the tier that holds the balance. A balance equal to a bound
/// belongs to the lower tier; a balance below 0 to the first.
std::size_t TierOfBalance(const std::vector<BalanceTier>& tiers, double balance);

/// The annual rate, in percent, that the day list shows beside a balance: the account's rate, or
/// the rate of the tier that holds the balance. A stepped account's rate of the day is typed, so
/// that `typedRate` stays.
double RateOfDay(const StatementAccount& account, double balance, double typedRate);

}  // namespace corvane
