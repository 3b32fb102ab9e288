#pragma once

#include <vector>

#include "formulas/AccountTerms.h"

namespace corvane {

/// How the balance that earns interest is found: the average of the period, or each day's.
enum class BalanceMethod { AverageDailyBalance, DailyBalance };

/// What decides the interest of a statement account.
struct StatementAccount {
  AccountKind kind = AccountKind::Regular;
  BalanceMethod method = BalanceMethod::DailyBalance;
  int compoundingDays = 0;  ///< 0 without compounding, N for compounding every N days
  double factorDays = 365;  ///< days of the year of the daily rate factor
  double rate = 0;          ///< percent a year, of a regular account
  double minimumAdb = 0;    ///< currency; 0 for none
  double minimumDailyBalance = 0;
  std::vector<Tier> tiers;  ///< of a tiered account, lowest first; never empty for one

  bool operator==(const StatementAccount&) const = default;
};

}  // namespace corvane
