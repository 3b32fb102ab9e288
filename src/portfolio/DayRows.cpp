#include "portfolio/DayRows.h"

#include <algorithm>

#include "portfolio/Columns.h"
#include "portfolio/DayReader.h"

namespace corvane {

void AppendDayRow(std::string& text, std::string_view account, std::string_view date,
                  std::string_view balance, std::string_view rate) {
  AppendCsvCell(text, account, ',');
  for (const std::string_view cell : {date, balance, rate}) {
    text += ',';
    AppendCsvCell(text, cell, ',');
  }
  text += '\n';
}

bool IsDayHeader(std::string_view line) {
  if (!DayReader(CsvSourceOf(line)).Refusal().empty()) return false;
  CsvReader csv(CsvSourceOf(line));
  const PortfolioHeader header = HeaderOf(csv.Next()->cells, csv.Separator());
  const auto known =
      std::ranges::count_if(header.places, [](const auto& place) { return !!place; });
  const bool hasRate = header.places[static_cast<std::size_t>(Column::Rate)].has_value();
  return known == (hasRate ? 3 : 2);
}

}  // namespace corvane
