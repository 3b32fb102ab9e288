#pragma once

#include <string_view>

#include "reports/ReportFile.h"

namespace corvane {

/// Fills a template of tests/reports/golden, or the one that the program ships for a report, and
/// fails unless the file that is written equals the expected one in that folder, byte for byte.
void ExpectReport(std::string_view templateName, std::string_view expectedName,
                  const ReportContent& content);
void ExpectShippedReport(const ReportNames& report, std::string_view expectedName,
                         const ReportContent& content);

}  // namespace corvane
