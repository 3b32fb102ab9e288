#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/Refusal.h"
#include "reports/TemplateEngine.h"

namespace corvane {

/// The file names of one report and what its Save As dialog starts from. An empty title leaves the
/// dialog's own.
struct ReportNames {
  std::string_view templateName;  ///< in the program's folder
  std::string_view outputName;    ///< in the data folder
  std::string_view saveTitle;
  std::string_view saveName;
};

/// Why a file could not be read or written: its path and the operating system's reason.
struct ReportFileError {
  std::string path;
  std::string reason;
};

/// The message box for a report that could not be built.
Refusal MessageFor(const ReportFileError& error);

/// Paths are kept as UTF-8 texts; these are the two ways across to the operating system's form.
std::filesystem::path PathOf(std::string_view utf8);
std::string Utf8Of(const std::filesystem::path& path);

/// The path of a file in a folder, with the platform's separator between them unless the folder
/// ends in one.
std::string FileIn(std::string_view folder, std::string_view name);

/// The lines of a text, whether they end in CR LF or in LF alone; a terminator at the end starts no
/// further line.
std::vector<std::string> LinesOf(std::string_view text);

/// Writes a file as a whole: first a new one beside it, which then takes its place, so that a
/// failure leaves what was there before.
std::optional<ReportFileError> WriteWholeFile(const std::string& path, std::string_view content);

/// A report as it was written; with an error nothing was, and the text is empty.
struct ReportBuild {
  std::string text;                      ///< the lines joined, for Save As
  std::vector<std::string> unknownTags;  ///< each occurrence, to be told one by one
  std::optional<ReportFileError> error;
};

/// Fills the template file and writes the report, lines ending in CR LF, in place of the previous
/// one. The template is read before the output is touched.
ReportBuild BuildReportFile(const std::string& templatePath, const std::string& outputPath,
                            const ReportContent& content);

}  // namespace corvane
