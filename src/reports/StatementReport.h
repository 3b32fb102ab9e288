#pragma once

#include "account/AccountHeader.h"
#include "reports/ReportFile.h"
#include "statement/StatementCheck.h"

namespace corvane {

inline constexpr ReportNames kStatementReport = {
    "Periodic_Statement_Report_template.txt", "Periodic_Statement_Report.html",
    "Save Statement APY Summary", "Statement_APY_Summary.htm"};

/// The summary of a statement check that has a result: one result row and one row of average
/// balances, neither closed by an end tag.
ReportContent StatementReport(const AccountHeader& header, const StatementCheck& check,
                              const Date& today);

}  // namespace corvane
