#include "portfolio/AccountRows.h"

#include <algorithm>

#include "support/NumberText.h"

namespace corvane {

namespace {

char SmallLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// An empty cell says what the account's first row says.
bool Agrees(const PortfolioRow& first, const PortfolioRow& row, Column column) {
  const std::string_view cell = Trim(row.Cell(column));
  return cell.empty() || IsWord(first.Cell(column), cell);
}

}  // namespace

bool IsWord(std::string_view cell, std::string_view word) {
  const std::string_view text = Trim(cell);
  const auto same = [](char one, char other) { return SmallLetter(one) == SmallLetter(other); };
  return text == word || std::ranges::equal(text, word, same);
}

bool IsStatement(const PortfolioRow& row) {
  return IsWord(row.Cell(Column::Check), kStatement);
}

bool HasFurtherRows(const PortfolioRow& first) {
  const std::string_view kind = first.Cell(Column::Kind);
  const bool tiered = IsWord(kind, "tier-a") || IsWord(kind, "tier-b");
  return tiered || (IsWord(kind, "stepped") && !IsStatement(first));
}

bool Continues(const PortfolioRow& first, const PortfolioRow& row) {
  return HasFurtherRows(first) && first.Cell(Column::Account) == row.Cell(Column::Account) &&
         Agrees(first, row, Column::Check) && Agrees(first, row, Column::Kind);
}

}  // namespace corvane
