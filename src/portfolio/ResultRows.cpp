#include "portfolio/ResultRows.h"

#include "reports/HtmlText.h"
#include "support/Csv.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

/// Appends the cells behind a row.
class Cells {
 public:
  Cells(std::string& text, char separator) : text_(text), separator_(separator) {}

  void Add(const std::optional<double>& figure) {
    text_ += separator_;
    if (figure) text_ += FormatFixed2(*figure);
  }
  void Add(std::string_view text) {
    text_ += separator_;
    if (!text.empty()) AppendCsvCell(text_, text, separator_);
  }

 private:
  std::string& text_;
  char separator_;
};

std::optional<double> Difference(const Figures& figures) {
  if (!figures.apy || !figures.verdict) return std::nullopt;
  return *figures.apy - figures.disclosedApy;
}

std::string_view VerdictOf(const Figures& figures, bool isRefused) {
  if (isRefused) return kRefused;
  return figures.verdict ? VerdictText(*figures.verdict) : "";
}

/// In the order of ResultColumns.
void AppendOutcome(Cells cells, const RowOutcome& row, bool isRefused) {
  cells.Add(row.figures.interest);
  cells.Add(row.figures.apy);
  cells.Add(Difference(row.figures));
  cells.Add(VerdictOf(row.figures, isRefused));
  cells.Add(row.note);
  cells.Add(row.message);
  cells.Add(row.highEnd.interest);
  cells.Add(row.highEnd.apy);
  cells.Add(VerdictOf(row.highEnd, false));
  cells.Add(row.average);
}

}  // namespace

std::string ResultHeader(const PortfolioHeader& header) {
  std::string text = header.text;
  for (const char* column : ResultColumns()) text.append(1, header.separator).append(column);
  return text + header.lineEnd;
}

void AppendResults(std::string& text, const PortfolioHeader& header, const AccountRows& account,
                   const AccountOutcome& outcome) {
  for (std::size_t row = 0; row < account.rows.size(); ++row) {
    text += account.rows[row].text;
    AppendOutcome({text, header.separator}, outcome.rows[row], outcome.isRefused);
    text += header.lineEnd;
  }
}

}  // namespace corvane
