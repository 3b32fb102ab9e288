#pragma once

#include <string>

#include "reports/ReportFile.h"
#include "reports/TemplateEngine.h"

namespace corvane {

struct SessionRecord;

inline constexpr ReportNames kStatementReport = {
    "Periodic_Statement_Report_template.txt", "Periodic_Statement_Report.html",
    "Save Statement APY Summary", "Statement_APY_Summary.htm"};

/// The texts of the statement windows' fields that the report prints; each has its field's name.
struct StatementReportEntry {
  // Setup window.
  std::string txtDCompounding;
  bool optFormulaYes = false;

  // Period window.
  std::string txtMinADB;
  std::string txtMinDBal;
  std::string txtIntRate;
  std::string txtIntAmt;
  std::string txtDClApy;
  std::string txtLedgerdays;
  std::string txtADBLedgerBalance;
  std::string txtColDays;
  std::string txtADBCollectedBalance;
};

/// The summary of a statement check: one result row and one row of average balances, neither closed
/// by an end tag. The session is read while the report is built and must live until then.
ReportContent StatementReport(const SessionRecord& session, const StatementReportEntry& entry);

}  // namespace corvane
