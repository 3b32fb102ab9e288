#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "account/SessionRecord.h"
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
  std::ifstream file(CORVANE_REFERENCE_TABLES + name);
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

/// A session with the account that a row describes.
inline SessionRecord AccountOf(const CaseRow& row) {
  SessionRecord session;
  session.RoundingDigits = 15;
  session.CompoundNone = row.Text("unit") == "none";
  session.CompoundDays = row.Text("unit") == "days";
  session.CompoundMonths = row.Text("unit") == "months";
  session.CompoundYears = row.Text("unit") == "years";
  session.CompoundingDays = row.Whole("n");
  session.DaysInYear365 = row.Text("basis") == "365";
  session.DaysInYear366 = row.Text("basis") == "366";
  session.CountLeapDay = row.Text("leap") == "1";
  session.ReqWdrwlNotReq = row.Text("withdrawal") == "none";
  session.ReqWdrwlDays = row.Text("withdrawal") == "days";
  session.ReqWdrwlMonths = row.Text("withdrawal") == "months";
  session.DailyRateFactor = "1/" + row.Text("factor");
  return session;
}

}  // namespace corvane
