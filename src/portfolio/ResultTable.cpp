#include "portfolio/ResultTable.h"

#include <algorithm>

#include "portfolio/ResultRows.h"
#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr const char* kHeadings[] = {"Line",         "Account",    "Verdict",  "Disclosed APY",
                                     "Computed APY", "Difference", "Interest", "Check",
                                     "Description",  "Message"};

std::string CheckText(const CheckedRow& row) {
  const CheckedAccount& account = *row.account;
  return std::string(account.isStatement ? "Statement, " : "Disclosure, ") +
         AccountTypeHeading(account.kind) + (row.isHighEnd ? ", high end" : "");
}

std::string_view VerdictOf(const CheckedRow& row) {
  if (row.account->isRefused) return kRefused;
  return row.figures.verdict ? VerdictText(*row.figures.verdict) : "";
}

/// The number of a cell; nothing where the row has none.
std::optional<double> NumberOf(const CheckedRow& row, TableColumn column) {
  const Figures& figures = row.figures;
  switch (column) {
    case TableColumn::Line:
      return static_cast<double>(row.line);
    case TableColumn::Interest:
      return figures.interest;
    case TableColumn::DisclosedApy:
      return figures.verdict ? std::optional(figures.disclosedApy) : std::nullopt;
    case TableColumn::ComputedApy:
      return figures.apy;
    case TableColumn::Difference:
      if (!figures.verdict || !figures.apy) return std::nullopt;
      return *figures.apy - figures.disclosedApy;
    default:
      return std::nullopt;
  }
}

/// The text of a cell that needs not be made.
std::string_view TextOf(const CheckedRow& row, TableColumn column) {
  switch (column) {
    case TableColumn::Account:
      return row.name;
    case TableColumn::Description:
      return row.description;
    case TableColumn::Verdict:
      return VerdictOf(row);
    case TableColumn::Message:
      return row.message;
    default:
      return "";
  }
}

bool Holds(std::string_view text, std::string_view part) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  const auto same = [&lower](char a, char b) { return lower(a) == lower(b); };
  const auto found = std::search(text.begin(), text.end(), part.begin(), part.end(), same);
  return found != text.end() || part.empty();
}

/// Of two rows the one that stands first in a column of numbers; none last, whatever the order.
bool NumberLess(const CheckedRow* one, const CheckedRow* other, const RowQuery& query) {
  const auto a = NumberOf(*one, query.column), b = NumberOf(*other, query.column);
  if (!a || !b) return a.has_value() && !b.has_value();
  return query.descending ? *b < *a : *a < *b;
}

/// Kinds of checks in their order, statements last.
int CheckRank(const CheckedRow& row) {
  const CheckedAccount& account = *row.account;
  return (account.isStatement ? 16 : 0) + 2 * static_cast<int>(account.kind) + row.isHighEnd;
}

bool TextLess(const CheckedRow* one, const CheckedRow* other, const RowQuery& query) {
  if (query.descending) std::swap(one, other);
  if (query.column == TableColumn::Check) return CheckRank(*one) < CheckRank(*other);
  return TextOf(*one, query.column) < TextOf(*other, query.column);
}

}  // namespace

const char* HeadingOf(TableColumn column) {
  return kHeadings[static_cast<std::size_t>(column)];
}

bool IsNumeric(TableColumn column) {
  return column == TableColumn::Line ||
         (column >= TableColumn::DisclosedApy && column <= TableColumn::Interest);
}

std::string CellText(const CheckedRow& row, TableColumn column) {
  if (column == TableColumn::Check) return CheckText(row);
  if (!IsNumeric(column)) return std::string(TextOf(row, column));
  const auto number = NumberOf(row, column);
  if (!number) return "";
  return column == TableColumn::Line ? FormatCount(row.line) : FormatGrouped2(*number);
}

bool Matches(const CheckedRow& row, const RowQuery& query) {
  if (query.verdict && VerdictOf(row) != *query.verdict) return false;
  return query.text.empty() || Holds(row.name, query.text) || Holds(row.description, query.text) ||
         Holds(row.message, query.text) || Holds(CheckText(row), query.text);
}

std::vector<const CheckedRow*> FindRows(const CheckedParts& parts, const RowQuery& query) {
  std::vector<const CheckedRow*> found;
  for (const auto& part : parts) {
    for (const CheckedRow& row : part->Rows()) {
      if (Matches(row, query)) found.push_back(&row);
    }
  }
  if (query.IsInFileOrder()) return found;
  const auto isLess = IsNumeric(query.column) ? NumberLess : TextLess;
  std::ranges::stable_sort(
      found, [&](const auto* one, const auto* other) { return isLess(one, other, query); });
  return found;
}

std::optional<FileError> SaveResults(const std::filesystem::path& file, const CheckedParts& parts,
                                     const RowQuery& query, const std::atomic<bool>& cancel) {
  PiecewiseFile results(file);
  if (!parts.empty()) results.Write(parts.front()->Header());
  for (const auto& part : parts) {
    if (cancel) return std::nullopt;
    const CheckedAccount* written = nullptr;
    for (const CheckedRow& row : part->Rows()) {
      if (row.account == written || !Matches(row, query)) continue;
      written = row.account;
      results.Write(written->text);
    }
  }
  return results.Finish();
}

std::string CountsText(const AccountCounts& counts, std::size_t rowsShown, std::size_t rows) {
  const std::string text = CountsText(counts) + ".";
  if (rowsShown == rows) return text;
  return text + " " + FormatCount(rowsShown) + " of " + CountText(rows, "row") + " shown.";
}

}  // namespace corvane
