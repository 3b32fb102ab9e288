#include "RunText.h"

#include <set>

#include "portfolio/PortfolioRun.h"
#include "portfolio/ResultRows.h"

namespace corvane {

std::string RunText(std::string_view file, std::string_view balances, int threads) {
  DayReader days(CsvSourceOf(balances));
  AccountReader reader(CsvSourceOf(file), balances.empty() ? nullptr : &days);
  if (!reader.Header().refusal.empty()) return reader.Header().refusal;
  std::string text = ResultHeader(reader.Header());
  RunPortfolio(reader, {.threads = threads}, false, [&](const CheckedBatch& batch) {
    text += batch.text;
    return true;
  });
  for (const auto& [line, note] : reader.Notes()) text += std::to_string(line) + ": " + note + "\n";
  return text;
}

std::vector<NamedCells> RowsOf(std::string_view text) {
  std::vector<NamedCells> named;
  const std::vector<CsvRow> rows = CsvRowsOf(text);
  for (std::size_t row = 1; row < rows.size(); ++row) {
    NamedCells& cells = named.emplace_back();
    for (std::size_t place = 0; place < rows[row].cells.size(); ++place) {
      cells[rows[0].cells.at(place)] = rows[row].cells[place];
    }
  }
  return named;
}

std::string FileOf(const std::vector<NamedCells>& rows) {
  std::set<std::string> names;
  for (const NamedCells& row : rows) {
    for (const auto& [name, text] : row) names.insert(name);
  }
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ",") + name;
  for (const NamedCells& row : rows) {
    const char* mark = "\n";
    for (const std::string& name : names) {
      text += mark;
      mark = ",";
      const auto cell = row.find(name);
      if (cell != row.end()) AppendCsvCell(text, cell->second, ',');
    }
  }
  return text + "\n";
}

}  // namespace corvane
