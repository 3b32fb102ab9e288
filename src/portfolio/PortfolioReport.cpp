#include "portfolio/PortfolioReport.h"

#include <algorithm>

#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

std::string Row(const std::string& cells) {
  return std::string(kRowStart).append(cells).append(kRowEnd);
}

std::string LeftCell(std::string_view text) {
  return "<TD class=text>" + CellText(text) + "</TD>";
}

std::string CountRow(const std::string& name, const AccountCounts& counts) {
  return Row(PlainCell(name) + PlainCell(FormatCount(counts.accounts)) +
             PlainCell(FormatCount(counts.Ok())) + PlainCell(FormatCount(counts.violations)) +
             PlainCell(FormatCount(counts.refused)));
}

/// Line, account and description of a row.
std::string NameCells(const PortfolioRow& row) {
  return PlainCell(FormatCount(row.line)) + LeftCell(row.Cell(Column::Account)) +
         LeftCell(row.Cell(Column::Description));
}

std::string ViolationRow(const PortfolioRow& row, const Figures& figures) {
  return Row(NameCells(row) + PlainCell(DollarText(figures.interest.value_or(0))) +
             PlainCell(FormatFixed2(figures.disclosedApy) + "%") +
             PlainCell(FormatFixed2(figures.apy.value_or(0)) + "%") +
             PlainCell(FormatFixed2(figures.apy.value_or(0) - figures.disclosedApy)) +
             BoldVerdictCell(Verdict::Violation));
}

std::string TextRow(const PortfolioRow& row, const std::string& text) {
  return Row(NameCells(row) + LeftCell(text));
}

}  // namespace

std::vector<std::string> PortfolioSummary::Listed::Table() const {
  std::vector<std::string> table = rows;
  constexpr const char* kWhole = "<TR><TD class=text colspan=8>";
  if (count == 0) table.push_back(std::string(kWhole).append("None.</TD></TR>"));
  if (count > rows.size()) {
    table.push_back(kWhole + FormatCount(count - rows.size()) +
                    " more: see the results.</TD></TR>");
  }
  return table;
}

std::string CountsText(const AccountCounts& counts) {
  return CountText(counts.accounts, "account") + ": " + FormatCount(counts.Ok()) + " OK, " +
         CountText(counts.violations, "violation") + ", " + FormatCount(counts.refused) +
         " refused";
}

void PortfolioSummary::Take(const CheckedBatch& batch) {
  rows_ += batch.accounts.rows.size();
  for (std::size_t index = 0; index < batch.outcomes.size(); ++index) {
    TakeAccount(batch.accounts.Account(index), batch.outcomes[index]);
  }
}

void PortfolioSummary::TakeAccount(const AccountRows& account, const AccountOutcome& outcome) {
  auto& ofKind = counts_.at(outcome.isStatement ? 1 : 0).at(static_cast<std::size_t>(outcome.kind));
  for (AccountCounts* counts : {&total_, &ofKind}) {
    ++counts->accounts;
    counts->violations += outcome.isViolation;
    counts->refused += outcome.isRefused;
  }
  for (std::size_t row = 0; row < outcome.rows.size(); ++row) {
    TakeRow(account.rows[row], outcome.rows[row], outcome.isRefused);
  }
}

void PortfolioSummary::TakeRow(const PortfolioRow& row, const RowOutcome& outcome, bool isRefused) {
  for (const Figures* figures : {&outcome.figures, &outcome.highEnd}) {
    if (figures->verdict == Verdict::Violation)
      violations_.Add([&] { return ViolationRow(row, *figures); });
  }
  if (isRefused && !outcome.message.empty())
    refused_.Add([&] { return TextRow(row, outcome.message); });
  if (!isRefused && !outcome.message.empty())
    notes_.Add([&] { return TextRow(row, outcome.message); });
  if (!outcome.note.empty()) notes_.Add([&] { return TextRow(row, outcome.note); });
}

ReportContent PortfolioSummary::Content(const std::string& files, const std::string& program,
                                        const std::string& moment) const {
  Rows counts;
  for (std::size_t check = 0; check < counts_.size(); ++check) {
    const std::string checked = check == 0 ? "Disclosure, " : "Statement, ";
    for (std::size_t kind = 0; kind < counts_[check].size(); ++kind) {
      const AccountCounts& ofKind = counts_[check][kind];
      const std::string name = AccountTypeHeading(static_cast<AccountKind>(kind));
      if (ofKind.accounts > 0) counts.push_back(CountRow(checked + name, ofKind));
    }
  }
  counts.push_back(CountRow("All", total_));
  return {
      .tags = {{"^rundate^", {EscapeHtml(moment)}},
               {"^files^", {EscapeHtml(files)}},
               {"^program^", {EscapeHtml(program)}},
               {"^rows^", {FormatCount(rows_)}}},
      .rows = {SameRows("^countrow^", std::move(counts)),
               SameRows("^violationrow^", violations_.Table()),
               SameRows("^refusedrow^", refused_.Table()), SameRows("^noterow^", notes_.Table())}};
}

}  // namespace corvane
