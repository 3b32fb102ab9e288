#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// The columns of a portfolio file that mean something; docs/portfolio.md describes them.
enum class Column {
  Account,
  Check,
  Kind,
  Institution,
  Description,
  Holder,
  Number,
  Compounding,
  Every,
  Year,
  CountFeb29,
  Withdrawals,
  BeginMonth,
  BeginYear,
  DisclosedApy,
  DisclosedApyHigh,
  Balance,
  Rate,
  NotExceeding,
  Term,
  StartDate,
  EndDate,
  DailyRateFactor,
  WithdrawalPeriods,
  WithdrawalDistance,
  Method,
  MinimumAdb,
  MinimumDaily,
  Days,
  AverageBalance,
  Interest,
  AdditionalDays,
  Count
};

inline constexpr auto kColumns = static_cast<std::size_t>(Column::Count);

/// The name of a column as it stands in a header, such as "disclosed_apy".
const char* NameOf(Column column);

/// The names of the columns that a run writes behind those of its file, in their order.
std::span<const char* const> ResultColumns();

/// What the header of a file says.
struct PortfolioHeader {
  char separator = ',';
  std::string lineEnd = "\n";
  std::string text;  ///< the columns that are written again, as they stand
  /// The place of each column in the file; nothing for one that it does not have.
  std::array<std::optional<std::size_t>, kColumns> places;
  std::size_t cells = 0;  ///< how many a row has
  /// Places of columns that an earlier run wrote: they are left out and written anew.
  std::vector<std::size_t> dropped;
  std::string refusal;  ///< why the file cannot be read by this header; empty when it can
};

/// Reads a header from the cells of the first record, as they stand in the file.
PortfolioHeader HeaderOf(std::span<const std::string_view> cells, char separator);

/// A header of all columns.
PortfolioHeader FullHeader();

}  // namespace corvane
