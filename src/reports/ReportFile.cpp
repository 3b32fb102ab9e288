#include "reports/ReportFile.h"

#include "support/Paths.h"
#include "support/WholeFile.h"

namespace corvane {

namespace {

Refusal Message(std::string text) {
  return {std::move(text), "", "Error!", MessageIcon::None};
}

Refusal UnknownTag(const std::string& tag) {
  return Message("Unrecognized Tag String = " + tag + " from Horizontal Template File");
}

Refusal NotWritten(const FileError& error) {
  return Message("The report could not be written: " + PathText(error.path) + "\n" + error.reason);
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

}  // namespace

WrittenReport WriteReport(const std::filesystem::path& templateFile,
                          const std::filesystem::path& output, const ReportContent& content) {
  const auto source = ReadWholeFile(templateFile);
  if (const auto* error = std::get_if<FileError>(&source)) return {{}, {NotWritten(*error)}};
  const FilledTemplate filled = FillTemplate(LinesOf(std::get<std::string>(source)), content);
  WrittenReport report;
  for (const std::string& tag : filled.unknownTags) report.messages.push_back(UnknownTag(tag));
  if (const auto error = WriteWholeFile(output, TextOf(filled.lines))) {
    report.messages.push_back(NotWritten(*error));
  } else {
    report.text = Joined(filled.lines);
  }
  return report;
}

}  // namespace corvane
