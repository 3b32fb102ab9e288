#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/Refusal.h"
#include "reports/ReportTemplate.h"

namespace corvane {

/// The file names of one report and what its Save As dialog starts from. An empty title leaves the
/// dialog's own.
struct ReportNames {
  std::string_view templateName;  ///< in the program's folder
  std::string_view outputName;    ///< in the data folder
  std::string_view saveTitle;
  std::string_view saveName;
};

struct WrittenReport {
  /// The lines joined without an end, for Save As; nothing where no report was written.
  std::optional<std::string> text;
  /// What has to be told: each occurrence of a tag that the report does not know, then why nothing
  /// was written.
  std::vector<Refusal> messages;
};

/// Fills the template file and writes the report, lines ending in CR LF, in place of the previous
/// one. The template is read before the output is touched.
WrittenReport WriteReport(const std::filesystem::path& templateFile,
                          const std::filesystem::path& output, const ReportContent& content);

}  // namespace corvane
