#pragma once

#include "account/AccountHeader.h"
#include "disclosure/DisclosureCheck.h"
#include "reports/ReportFile.h"

namespace corvane {

inline constexpr ReportNames kDisclosureReport = {"Disclosed_Report_template.txt",
                                                  "Disclosed_APY_Summary.html", "",
                                                  "Disclosed_APY_Summary.html"};

/// The summary of a disclosure check that has a result. A regular account has one row per marker
/// line, with the figures as they were typed; a stepped or tiered one has the rows of its result. A
/// period still to be entered shows as an unfilled row.
ReportContent DisclosureReport(const AccountHeader& header, const DisclosureCheck& check,
                               const Date& today);

}  // namespace corvane
