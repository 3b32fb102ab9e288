#pragma once

#include <array>

#include "reports/ReportFile.h"
#include "reports/TemplateEngine.h"

namespace corvane {

struct SessionRecord;

inline constexpr ReportNames kInterestReport = {"Interest_Report_template.txt",
                                                "Interest_Report.html", "", "Interest_Report.html"};

/// What the report prints of the statement setup window.
struct InterestReportEntry {
  bool optFormulaYes = false;
};

/// The days first to last of one column; empty when last is below first.
struct DayColumn {
  int first = 1;
  int last = 0;
};

/// Splits the days 1 to `days` over three columns side by side. The first column is never shorter
/// than the others, so that its length is the number of rows.
std::array<DayColumn, 3> SplitDays(int days);

/// Date, balance and rate of every day of the statement period, three days to a row, from the
/// ledger or the collected tables as LedgerBasis says. Rows are not closed by an end tag. The
/// session is read while the report is built and must live until then.
ReportContent InterestReport(const SessionRecord& session, const InterestReportEntry& entry);

}  // namespace corvane
