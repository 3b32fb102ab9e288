#include "formulas/AverageDailyBalance.h"

#include <algorithm>

#include "formulas/RoundValue.h"

namespace corvane {

double CountedBalance(double balance) {
  return std::max(balance, 0.0);
}

double AverageDailyBalance(const std::vector<double>& balances) {
  if (balances.empty()) return 0;
  double sum = 0;
  for (double balance : balances) sum += CountedBalance(balance);
  return RoundToDecimals(sum / static_cast<double>(balances.size()), 2);
}

}  // namespace corvane
