#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "formulas/AccountTerms.h"
#include "support/NumberText.h"

namespace corvane {

inline std::vector<std::string> SplitAt(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

/// One row of a reference table, read by column name; lists are joined by "/".
struct CaseRow {
  std::string line;
  std::map<std::string, std::string> fields;

  std::string Text(const std::string& column) const { return fields.at(column); }
  double Number(const std::string& column) const { return NumericValue(Text(column)); }
  std::int16_t Whole(const std::string& column) const { return WholeNumber(Text(column)).value(); }
  std::vector<double> List(const std::string& column) const {
    std::vector<double> numbers;
    for (const auto& part : SplitAt(Text(column), '/')) numbers.push_back(NumericValue(part));
    return numbers;
  }
};

/// The rows of a table that tests/reference/make_tables.py wrote.
inline std::vector<CaseRow> ReadCases(const std::string& name) {
  std::ifstream file(CORVANE_TESTS "reference/" + name);
  std::string line;
  std::getline(file, line);
  const auto columns = SplitAt(line, ',');
  std::vector<CaseRow> rows;
  while (std::getline(file, line)) {
    const auto texts = SplitAt(line, ',');
    CaseRow row{line, {}};
    for (std::size_t i = 0; i < columns.size(); ++i) row.fields[columns[i]] = texts.at(i);
    rows.push_back(row);
  }
  EXPECT_GT(rows.size(), 20u) << name << " is missing or cut short";
  return rows;
}

/// The account that a row describes.
inline AccountTerms TermsOf(const CaseRow& row) {
  using enum Unit;
  static const std::map<std::string, Unit> units = {
      {"none", None}, {"days", Days}, {"months", Months}, {"years", Years}};
  return {.compounding = {units.at(row.Text("unit")), row.Whole("n")},
          .withdrawal = units.at(row.Text("withdrawal")),
          .year = {row.Whole("basis"), row.Text("leap") == "1"}};
}

}  // namespace corvane
