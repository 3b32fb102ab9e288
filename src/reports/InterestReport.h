#pragma once

#include <array>
#include <cstddef>

#include "account/AccountHeader.h"
#include "reports/ReportFile.h"
#include "statement/StatementCheck.h"

namespace corvane {

inline constexpr ReportNames kInterestReport = {"Interest_Report_template.txt",
                                                "Interest_Report.html", "", "Interest_Report.html"};

/// Splits the days over three columns side by side. The first column is never shorter than the
/// others, so that its length is the number of rows.
std::array<DaySpan, 3> SplitDays(std::size_t dayCount);

/// Date, balance and rate of every day, three days to a row, the rates as they stand in the days
/// (FillRates works them out). Rows are not closed by an end tag. The check describes the account.
ReportContent InterestReport(const AccountHeader& header, const StatementCheck& check,
                             const DailyBalances& daily, const Date& today);

}  // namespace corvane
