#pragma once

#include <vector>

namespace corvane {

struct SessionRecord;

enum class RateKind { Regular, Stepped, TierA, TierB };

/// How the balance that earns interest is found; the values are those of BalanceMethodCode.
enum class BalanceMethod { AverageDailyBalance = 1, DailyBalance = 2 };

struct BalanceTier {
  double above = 0;  ///< currency; a balance equal to it belongs to the tier below (tier 1: 0)
  double rate = 0;   ///< percent a year
};

/// What decides the interest of a statement account.
struct StatementAccount {
  RateKind kind = RateKind::Regular;
  BalanceMethod method = BalanceMethod::DailyBalance;
  int compoundingDays = 0;  ///< 0 without compounding, N for compounding every N days
  double daysInYear = 365;  ///< denominator of the daily rate factor
  double rate = 0;          ///< percent a year, of a regular account
  double minimumAdb = 0;    ///< currency; 0 for none
  double minimumDailyBalance = 0;
  std::vector<BalanceTier> tiers;  ///< of a tiered account, lowest first; never empty for one
};

RateKind RateKindOf(const SessionRecord& session);

/// True for both tiered methods.
bool IsTiered(RateKind kind);

/// The account that setup, tier table and period entry describe; `rate` is the interest rate typed
/// for a regular account, percent a year.
StatementAccount AccountOf(const SessionRecord& session, double rate);

}  // namespace corvane
