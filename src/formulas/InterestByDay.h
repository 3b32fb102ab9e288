#pragma once

#include <vector>

#include "formulas/StatementAccount.h"

namespace corvane {

/// The balance of a day as Regulation DD counts it: a negative balance counts as 0.
double CountedBalance(double balance);

/// The average of the counted balances of all days, in currency rounded to 2 decimals; 0 without
/// days.
/// @param balances whole cents
double AverageDailyBalance(const std::vector<double>& balances);

/// The interest of a period in currency, kept to 15 decimals.
struct PeriodInterest {
  double total = 0;
  std::vector<double> ofDay;  ///< first day of the period at 0
};

struct StatementInterest {
  double averageBalance = 0;  ///< currency, 2 decimals
  PeriodInterest interest;
};

/// The average daily balance of a statement period and the interest that its balances earn. By the
/// average daily balance method nothing is earned when the average is below the minimum ADB; else
/// the average's daily interest times the days or, with compounding, what it earns day by day. By
/// the daily balance method each day earns on its own balance, and a day below the minimum daily
/// balance neither earns nor counts towards a compounding period. A stepped account earns by each
/// day's balance whatever the method.
/// @param balances one per day, currency
/// @param rates the annual rate of each day in percent, read for stepped accounts only
StatementInterest InterestByDay(const StatementAccount& account,
                                const std::vector<double>& balances,
                                const std::vector<double>& rates);

}  // namespace corvane
