#include "reports/ReportFile.h"

#include <algorithm>
#include <span>

#include "support/Paths.h"

namespace corvane {

namespace {

Refusal Message(std::string text) {
  return {std::move(text), "", "Error!", MessageIcon::None};
}

constexpr std::size_t kMostTagsTold = 3;

std::vector<Refusal> UnknownTags(const std::vector<std::string>& tags) {
  std::vector<Refusal> messages;
  for (const std::string& tag : std::span(tags).first(std::min(kMostTagsTold, tags.size()))) {
    messages.push_back(
        Message("Unrecognized Tag String = " + tag + " from Horizontal Template File"));
  }
  if (tags.size() > kMostTagsTold) {
    messages.push_back(Message("Further Unrecognized Tag Strings from Horizontal Template File: " +
                               std::to_string(tags.size() - kMostTagsTold)));
  }
  return messages;
}

/// Why a report cannot be made of this text; empty when it can.
std::string WhyNoTemplate(const std::string& text, const ReportContent& content) {
  if (text.find('\0') != std::string::npos) return "The template is no text file";
  const bool holdsRow = std::ranges::any_of(content.rows, [&text](const MarkedRows& rows) {
    return text.find(rows.marker) != std::string::npos;
  });
  return holdsRow ? "" : "The template holds no data row";
}

/// The text of the template.
std::variant<std::string, FileError> ReadTemplate(const std::filesystem::path& file,
                                                  const ReportContent& content) {
  auto source = ReadWholeFile(file);
  if (const auto* text = std::get_if<std::string>(&source)) {
    if (std::string reason = WhyNoTemplate(*text, content); !reason.empty()) {
      return FileError{file, reason};
    }
  }
  return source;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

}  // namespace

Refusal ReportNotWritten(const FileError& error) {
  return Message("The report could not be written: " + PathText(error.path) + "\n" + error.reason);
}

WrittenReport WriteReport(const std::filesystem::path& templateFile,
                          const std::filesystem::path& output, const ReportContent& content) {
  if (!output.is_absolute()) {
    return {{}, {ReportNotWritten({output, "There is no documents folder"})}};
  }
  const auto source = ReadTemplate(templateFile, content);
  if (const auto* error = std::get_if<FileError>(&source)) return {{}, {ReportNotWritten(*error)}};
  const FilledTemplate filled = FillTemplate(LinesOf(std::get<std::string>(source)), content);
  if (filled.isTooLarge) {
    return {{}, {ReportNotWritten({templateFile, "The report would be larger than 64 MiB"})}};
  }
  WrittenReport report = {{}, UnknownTags(filled.unknownTags)};
  if (const auto error = WriteWholeFile(output, TextOf(filled.lines))) {
    report.messages.push_back(ReportNotWritten(*error));
  } else {
    report.text = Joined(filled.lines);
  }
  return report;
}

bool HoldsReport(const std::filesystem::path& file, const std::string& text) {
  const auto content = ReadWholeFile(file, std::string().max_size());
  const auto* written = std::get_if<std::string>(&content);
  return written && Joined(LinesOf(*written)) == text;
}

}  // namespace corvane
