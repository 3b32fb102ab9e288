#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/Refusal.h"
#include "reports/ReportTemplate.h"
#include "support/WholeFile.h"

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
  /// What has to be told: the first three occurrences of tags that the report does not know and how
  /// many more there were, then why nothing was written.
  std::vector<Refusal> messages;
};

/// What is said when a report or a copy of it could not be written.
Refusal ReportNotWritten(const FileError& error);

/// Whether the file holds the report of this text, as WriteReport has written it.
bool HoldsReport(const std::filesystem::path& file, const std::string& text);

/// Fills the template file and writes the report, lines ending in CR LF, in place of the previous
/// one, which stays when the template is no text with a data row. An output without a folder is
/// refused: it would land wherever the program was started.
WrittenReport WriteReport(const std::filesystem::path& templateFile,
                          const std::filesystem::path& output, const ReportContent& content);

}  // namespace corvane
