#pragma once

#include <vector>

#include "statement/StatementAccount.h"

namespace corvane {

/// The interest of a period in currency, kept to 15 decimals.
struct PeriodInterest {
  double total = 0;
  std::vector<double> ofDay;  ///< first day of the period at 0
};

struct StatementInterest {
  double averageBalance = 0;  ///< currency, 2 decimals
  PeriodInterest interest;
};

/// The average daily balance of a statement period and the interest that its balances earn.
/// `balances` holds one balance per day, `rates` the annual rate of each day in percent (read for
/// stepped accounts only). A stepped account earns by each day's balance whatever the method.
StatementInterest InterestByDay(const StatementAccount& account,
                                const std::vector<double>& balances,
                                const std::vector<double>& rates);

}  // namespace corvane
