#pragma once

#include <string>

#include "reports/TemplateEngine.h"

namespace corvane {

/// The bytes of a file; empty where there is none.
std::string BytesOf(const std::string& path);

/// Fills the template and fails unless the file that is written equals the expected one in
/// tests/reports/golden, byte for byte; shows the first line that differs and where the computed
/// report is.
void ExpectReport(const std::string& templatePath, const std::string& expectedName,
                  const ReportContent& content);

/// The path of a template that the program ships, and of one that exists for the tests only.
std::string ShippedTemplate(std::string_view name);
std::string SmallTemplate(std::string_view name);

}  // namespace corvane
