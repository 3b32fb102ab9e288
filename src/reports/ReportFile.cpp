#include "reports/ReportFile.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

namespace corvane {

namespace {

constexpr std::string_view kLineTerminator = "\r\n";

/// Streams tell that they failed but not why; errno still holds the reason of the system call that
/// made them fail.
ReportFileError LastError(const std::string& path) {
  return {path, std::generic_category().message(errno != 0 ? errno : EIO)};
}

std::optional<ReportFileError> ReadWholeFile(const std::string& path, std::string& content) {
  errno = 0;
  std::ifstream in(PathOf(path), std::ios::binary);
  if (!in) return LastError(path);
  char block[16384];
  while (in.read(block, sizeof block) || in.gcount() > 0) {
    content.append(block, static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad()) return LastError(path);
  return std::nullopt;
}

std::optional<ReportFileError> WriteNewFile(const std::string& path, std::string_view content) {
  errno = 0;
  std::ofstream out(PathOf(path), std::ios::binary | std::ios::trunc);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  out.close();
  if (!out) return LastError(path);
  return std::nullopt;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(kLineTerminator);
  return text;
}

}  // namespace

Refusal MessageFor(const ReportFileError& error) {
  return {"The report could not be written: " + error.path + "\n" + error.reason, "", "Error!",
          MessageIcon::None};
}

std::filesystem::path PathOf(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return std::string(utf8.begin(), utf8.end());
}

std::string FileIn(std::string_view folder, std::string_view name) {
  return Utf8Of(PathOf(folder) / PathOf(name));
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

std::optional<ReportFileError> WriteWholeFile(const std::string& path, std::string_view content) {
  const std::string newPath = path + ".new";
  std::error_code failure;
  if (auto error = WriteNewFile(newPath, content)) {
    std::filesystem::remove(PathOf(newPath), failure);
    return ReportFileError{path, error->reason};
  }
  std::filesystem::rename(PathOf(newPath), PathOf(path), failure);
  if (!failure) return std::nullopt;
  std::error_code ignored;
  std::filesystem::remove(PathOf(newPath), ignored);
  return ReportFileError{path, failure.message()};
}

ReportBuild BuildReportFile(const std::string& templatePath, const std::string& outputPath,
                            const ReportContent& content) {
  std::string templateText;
  if (auto error = ReadWholeFile(templatePath, templateText)) return {"", {}, std::move(error)};
  BuiltReport report = BuildReport(LinesOf(templateText), content);
  auto error = WriteWholeFile(outputPath, Joined(report.lines));
  if (error) report.text.clear();
  return {std::move(report.text), std::move(report.unknownTags), std::move(error)};
}

}  // namespace corvane
