#include "portfolio/Columns.h"

#include <algorithm>

#include "support/Csv.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

/// In the order of Column.
constexpr const char* kNames[kColumns] = {"account",
                                          "check",
                                          "kind",
                                          "institution",
                                          "description",
                                          "holder",
                                          "number",
                                          "compounding",
                                          "every",
                                          "year",
                                          "count_feb_29",
                                          "withdrawals",
                                          "begin_month",
                                          "begin_year",
                                          "disclosed_apy",
                                          "disclosed_apy_high",
                                          "balance",
                                          "rate",
                                          "not_exceeding",
                                          "term",
                                          "start_date",
                                          "end_date",
                                          "daily_rate_factor",
                                          "withdrawal_periods",
                                          "withdrawal_distance",
                                          "method",
                                          "minimum_adb",
                                          "minimum_daily",
                                          "days",
                                          "average_balance",
                                          "interest",
                                          "additional_days"};

constexpr const char* kResults[] = {"computed_interest",
                                    "computed_apy",
                                    "difference",
                                    "verdict",
                                    "note",
                                    "message",
                                    "computed_interest_high",
                                    "computed_apy_high",
                                    "verdict_high",
                                    "computed_average"};

void TakeColumn(PortfolioHeader& header, std::string_view name, std::size_t place) {
  const auto* known = std::ranges::find(kNames, name);
  if (known == std::end(kNames)) return;
  auto& taken = header.places[static_cast<std::size_t>(known - kNames)];
  if (taken) header.refusal = "The column \"" + std::string(name) + "\" stands twice.";
  taken = place;
}

}  // namespace

const char* NameOf(Column column) {
  return kNames[static_cast<std::size_t>(column)];
}

std::span<const char* const> ResultColumns() {
  return kResults;
}

PortfolioHeader HeaderOf(std::span<const std::string_view> cells, char separator) {
  PortfolioHeader header;
  header.separator = separator;
  header.cells = cells.size();
  std::string buffer;
  for (std::size_t place = 0; place < cells.size(); ++place) {
    const std::string_view name = Trim(CsvText(cells[place], buffer));
    if (std::ranges::find(kResults, name) != std::end(kResults)) {
      header.dropped.push_back(place);
      continue;
    }
    if (!header.text.empty()) header.text += separator;
    header.text += cells[place];
    TakeColumn(header, name, place);
  }
  const auto isKnown = [](const auto& place) { return place.has_value(); };
  if (std::ranges::none_of(header.places, isKnown)) {
    header.refusal = "The first line names no column such as account, balance or rate.";
  }
  return header;
}

PortfolioHeader FullHeader() {
  const std::vector<std::string_view> names(std::begin(kNames), std::end(kNames));
  return HeaderOf(names, ',');
}

}  // namespace corvane
