#pragma once

#include <string>

#include "reports/ReportFile.h"
#include "reports/TemplateEngine.h"

namespace corvane {

struct SessionRecord;

inline constexpr ReportNames kDisclosureReport = {"Disclosed_Report_template.txt",
                                                  "Disclosed_APY_Summary.html", "",
                                                  "Disclosed_APY_Summary.html"};

/// The texts of the entry window's fields that the report prints; each has its field's name.
struct DisclosureReportEntry {
  std::string txtBal;
  std::string txtIntRateA;
  std::string txtTerm;
  std::string txtDiscAPY;
  std::string txtWdrwlPeriods;
  std::string txtBtwnReqIntWdrwl;
};

/// The summary of a disclosure check. A regular account has one row per marker line, from the entry
/// and the computed figures; a stepped or tiered one has the rows that its calculation stored. The
/// session is read while the report is built and must live until then.
ReportContent DisclosureReport(const SessionRecord& session, const DisclosureReportEntry& entry);

}  // namespace corvane
