#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace corvane {

/// Why a file could not be read or written: which one, and the operating system's reason.
struct FileError {
  std::filesystem::path path;
  std::string reason;
};

/// The bytes of a file; folders, pipes and devices are none.
std::variant<std::string, FileError> ReadWholeFile(const std::filesystem::path& file);

/// Writes a file as a whole: first a new one beside it, which is on the disk before it takes the
/// old one's place, so that a failure leaves what was there before. A link is followed, the mode of
/// the old file is kept, and a write-protected file is not replaced.
std::optional<FileError> WriteWholeFile(const std::filesystem::path& file,
                                        std::string_view content);

/// The lines of a text, whether they end in CR LF or in LF alone; an end behind the last one starts
/// no further line.
std::vector<std::string> LinesOf(std::string_view text);

/// The text of a file of these lines, each of which ends in CR LF.
std::string TextOf(const std::vector<std::string>& lines);

}  // namespace corvane
