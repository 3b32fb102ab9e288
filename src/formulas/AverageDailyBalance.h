#pragma once

#include <vector>

namespace corvane {

/// The balance of a day as Regulation DD counts it: a negative balance counts as 0.
double CountedBalance(double balance);

/// The average of the counted balances of all days, in currency rounded to 2 decimals; 0 without
/// days.
double AverageDailyBalance(const std::vector<double>& balances);

}  // namespace corvane
