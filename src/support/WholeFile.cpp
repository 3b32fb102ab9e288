#include "support/WholeFile.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace corvane {

namespace {

/// Streams tell that they failed but not why; errno still holds the reason of the system call that
/// made them fail.
std::string LastReason() {
  return std::generic_category().message(errno != 0 ? errno : EIO);
}

/// Why the file could not be made; empty for success.
std::string WriteNew(const std::filesystem::path& file, std::string_view content) {
  errno = 0;
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  out.close();
  return out ? "" : LastReason();
}

}  // namespace

std::variant<std::string, FileError> ReadWholeFile(const std::filesystem::path& file) {
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (!in) return FileError{file, LastReason()};
  std::string content;
  char block[16384];
  while (in.read(block, sizeof block) || in.gcount() > 0) {
    content.append(block, static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad()) return FileError{file, LastReason()};
  return content;
}

std::optional<FileError> WriteWholeFile(const std::filesystem::path& file,
                                        std::string_view content) {
  std::filesystem::path beside = file;
  beside += ".new";
  std::string reason = WriteNew(beside, content);
  std::error_code failure;
  if (reason.empty()) std::filesystem::rename(beside, file, failure);
  if (failure) reason = failure.message();
  if (reason.empty()) return std::nullopt;
  std::filesystem::remove(beside, failure);
  return FileError{file, reason};
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

std::string TextOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return text;
}

}  // namespace corvane
