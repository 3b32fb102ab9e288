#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "account/NumericEntry.h"
#include "account/Refusal.h"
#include "formulas/InterestByDay.h"
#include "statement/StatementEntry.h"

namespace corvane {

/// One day of the daily window, as its row reads: numbers in their formats, any other text as it
/// was typed.
struct DayEntry {
  std::string balance;  ///< currency; may be negative
  std::string rate;     ///< percent a year; typed for stepped accounts, else worked out
};

inline constexpr DecimalLimit kDayBalanceDecimals = {"txtDayBal", 2, "bal"};
inline constexpr DecimalLimit kDayRateDecimals = {"txtRate", 4, "int"};

/// What the daily window works on: the days of one column, first day at 0.
struct DailyBalances {
  StatementAccount account;
  BalanceColumn column = BalanceColumn::Ledger;
  /// By the ledger average the ledger column hands back its average only.
  BalanceBasis basis = BalanceBasis::Equal;
  Date start{};  ///< the first day
  std::vector<DayEntry> days;

  bool TakesRates() const { return account.kind == AccountKind::Stepped; }
};

/// The date of a day as its row shows it: "Jan 5".
std::string DayLabel(const DailyBalances& daily, std::size_t day);

/// Takes a balance field that is left. The rate follows at once for regular and tiered accounts; a
/// balance of 0 leaves it empty.
void EnterBalance(DailyBalances& daily, std::size_t day, const std::string& balance);

/// Takes a row as its page is left; the rate counts for stepped accounts only.
void TakeDay(DailyBalances& daily, std::size_t day, const DayEntry& row);

/// Why a page (1 to 3) must not be left: a balance that is no number, or a rate of a stepped
/// account that is none or below 0.
std::optional<Refusal> CheckPage(const DailyBalances& daily, int page);

/// "Clear Data": no day holds anything.
DailyBalances ClearDays(DailyBalances daily);

/// Works the rate of every day out anew, on all pages; a stepped account's stay as typed.
void FillRates(DailyBalances& daily);

/// What is entered so far.
struct DaysSummary {
  std::size_t entered = 0;  ///< days with a balance
  double sum = 0;           ///< currency, of the balances as they count for the average
  double average = 0;       ///< currency, 2 decimals, of the days entered
};
DaysSummary Summarize(const DailyBalances& daily);

/// The summary at the foot of the window: "12 of 31 days entered, 19 empty", sum and average.
std::string SummaryText(const DailyBalances& daily);

/// What "Compute ADB" asks first where days were left empty.
std::optional<std::string> EmptyDaysQuestion(const DailyBalances& daily);

/// The average of the days and the interest that each of them earns.
StatementInterest InterestOf(const DailyBalances& daily);

/// What "Compute ADB" hands back.
struct ComputedDays {
  double averageBalance = 0;       ///< currency, 2 decimals
  std::optional<double> interest;  ///< currency, unrounded; nothing where the column gives none
};

/// The average of the days and the interest that they earn; with both minimums the daily balance
/// method gives none (0). Figures that no account has are refused.
std::variant<ComputedDays, Refusal> ComputeAdb(const DailyBalances& daily);

/// The rows of one page of the daily window.
inline constexpr std::size_t kDaysPerPage = 33;

/// Days of a period as positions, the first day at 0: from first on, without end.
struct DaySpan {
  std::size_t first;
  std::size_t end;
};

/// The days that a page (1 to 3) shows: 1 to 33, 34 to 66, 67 to 96, as far as the period has them.
DaySpan DaysOnPage(int page, std::size_t dayCount);
/// Whether "Next" leads on from a page: while the period has days beyond it.
bool HasNextPage(int page, std::size_t dayCount);

/// The page that shows a day.
int PageOf(std::size_t day);

/// A field of the window: of which day, and whether its balance or its rate.
struct DayPlace {
  std::size_t day = 0;
  bool isRate = false;
};
/// The control name of a field, which stands on the day's page.
std::string FieldAt(const DayPlace& place);

/// "Ledger" or "Collected".
const char* ColumnName(BalanceColumn column);

/// lblMinADB and lblMinBal of the daily window.
std::string MinimumAdbText(const StatementAccount& account);
std::string MinimumDailyBalanceText(const StatementAccount& account);

}  // namespace corvane
