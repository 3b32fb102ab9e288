#pragma once

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "portfolio/CheckedPart.h"
#include "portfolio/PortfolioReport.h"
#include "support/WholeFile.h"

namespace corvane {

/// The columns of the table that a window shows of a file, in their order.
enum class TableColumn {
  Line,
  Account,
  Verdict,
  DisclosedApy,
  ComputedApy,
  Difference,
  Interest,
  Check,
  Description,
  Message,
  Count
};

inline constexpr auto kTableColumns = static_cast<int>(TableColumn::Count);

/// What stands above a column.
const char* HeadingOf(TableColumn column);
/// Whether a column holds numbers, which stand at the right.
bool IsNumeric(TableColumn column);

/// The text of a cell: interest in currency, APY in percent, difference in percentage points.
std::string CellText(const CheckedRow& row, TableColumn column);

/// What the table shows, and in which order. As it stands here: all rows in the order of the file.
struct RowQuery {
  std::optional<std::string> verdict;  ///< as the column says it, such as "APY VIOLATION"
  /// Has to stand in account, check, description or message, whatever its letters' case.
  std::string text;
  TableColumn column = TableColumn::Line;
  bool descending = false;

  bool ShowsAll() const { return !verdict && text.empty(); }
  bool IsInFileOrder() const { return column == TableColumn::Line && !descending; }
  bool operator==(const RowQuery&) const = default;
};

/// Whether the table shows a row.
bool Matches(const CheckedRow& row, const RowQuery& query);

/// The rows that a query finds, in its order; those that are equal stay in the order of the file,
/// and those without a figure come last. `parts` own the rows.
std::vector<const CheckedRow*> FindRows(const CheckedParts& parts, const RowQuery& query);

/// Writes the accounts of which the query shows a row, with all their rows and their results, in
/// the order of the file. Why the file could not be written; what was there before stays then, and
/// when `cancel` is set.
std::optional<FileError> SaveResults(const std::filesystem::path& file, const CheckedParts& parts,
                                     const RowQuery& query, const std::atomic<bool>& cancel);

/// "12 accounts: 9 OK, 2 violations, 1 refused", and how many rows are shown where not all are.
std::string CountsText(const AccountCounts& counts, std::size_t rowsShown, std::size_t rows);

}  // namespace corvane
