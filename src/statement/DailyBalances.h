#pragma once

#include <optional>
#include <string>
#include <vector>

#include "account/Refusal.h"
#include "statement/BalanceBasis.h"
#include "statement/StatementAccount.h"

namespace corvane {

/// One day of the daily window; what was not typed or worked out is nothing.
struct DayEntry {
  std::optional<double> balance;  ///< currency, as typed; may be negative
  std::optional<double> rate;     ///< percent a year
};

/// What the daily window works on: one column's days, first day at 0.
struct DailyBalances {
  StatementAccount account;
  BalanceColumn column = BalanceColumn::Ledger;
  std::vector<DayEntry> days;
  std::vector<double> interest;  ///< of each day, currency, once the ADB was computed

  bool TakesRates() const { return account.kind == RateKind::Stepped; }
};

struct DayTexts {
  std::string balance;
  std::string rate;
};

/// Opens the daily window on the column that LedgerBasis names: with the column's stored days when
/// they fit StatementDays and the account is not new, else empty. `interestRate` is the regular
/// account's rate, percent a year. Refuses a period of 0 days.
std::optional<Refusal> LoadDailyBalances(SessionRecord& session, double interestRate,
                                         DailyBalances& daily);

/// How a day's row reads: balance with two decimals, rate with two to four, empty for nothing.
DayTexts TextsOfDay(const DailyBalances& daily, std::size_t day);

/// Takes a balance field that is left and gives the row's texts back. The rate follows at once for
/// regular and tiered accounts; a balance of 0 leaves it empty.
DayTexts EnterBalance(DailyBalances& daily, std::size_t day, const std::string& balance);

/// Takes a row as its page is left; the rate counts for stepped accounts only.
void TakeDay(DailyBalances& daily, std::size_t day, const DayTexts& row);

/// "Clear Data": no day holds anything.
void ClearDays(DailyBalances& daily);

/// Works the rate of every day out anew, on all pages; a stepped account's stay as typed.
void FillRates(DailyBalances& daily);

std::vector<double> BalancesOf(const DailyBalances& daily);
std::vector<double> RatesOf(const DailyBalances& daily);

}  // namespace corvane
