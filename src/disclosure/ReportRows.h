#pragma once

#include <string>

namespace corvane {

struct SessionRecord;

/// One row of the disclosure report, as the report prints its cells.
struct ReportRow {
  std::string number;
  std::string balance;
  std::string rate;
  std::string term;
  std::string interest;
  std::string disclosedApy;
  std::string computedApy;
  std::string verdict;
};

/// Gives the eight row tables so many rows, all empty.
void SizeReportRows(SessionRecord& session, int count);

void StoreReportRow(SessionRecord& session, int row, const ReportRow& cells);

std::string MoneyCell(double amount);     ///< "$1,234.50"
std::string PercentCell(double percent);  ///< "5.39%", rates with up to four decimals

}  // namespace corvane
