#pragma once

#include <array>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "portfolio/Columns.h"

namespace corvane {

/// A row of a portfolio file.
struct PortfolioRow {
  std::size_t line = 0;   ///< in its file, from 1
  std::string_view text;  ///< what is written again of it, as it stood
  std::array<std::string_view, kColumns> cells;
  /// Why it cannot be read; empty when it can. Its cells are those before the damage.
  const char* damage = "";

  std::string_view Cell(Column column) const { return cells[static_cast<std::size_t>(column)]; }
};

/// A row of a file of daily balances.
struct DayRow {
  std::size_t line = 0;
  std::string date, balance, rate;
  const char* damage = "";
};

/// Rows of daily balances that follow one another with the same account.
struct AccountDays {
  std::string account;
  std::vector<DayRow> rows;
};

/// The rows of one account: one of a regular account or a statement, else one for each period or
/// tier. There is at least one.
struct AccountRows {
  std::span<const PortfolioRow> rows;
  std::shared_ptr<const AccountDays> days;  ///< of a statement that has them
};

inline constexpr const char* kDisclosure = "disclosure";
inline constexpr const char* kStatement = "statement";

/// Whether a word of a cell is this one, whatever its letters' case.
bool IsWord(std::string_view cell, std::string_view word);

/// Whether the row describes a statement.
bool IsStatement(const PortfolioRow& row);

/// Whether the account that begins with this row may go on in the next one.
bool HasFurtherRows(const PortfolioRow& first);

/// Whether a row is a further period or tier of the account that begins with `first`.
bool Continues(const PortfolioRow& first, const PortfolioRow& row);

}  // namespace corvane
