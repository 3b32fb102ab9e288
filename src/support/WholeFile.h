#pragma once

#include <cstdio>
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

/// Far more than any file that the program reads as a whole has for a reason, and little enough to
/// be read at once: 4 MiB, in bytes.
inline constexpr std::size_t kLargestFile = std::size_t{4} << 20;

/// The bytes of a file; folders, pipes and devices are none, and a file of more than so many bytes
/// is refused without being read to its end.
std::variant<std::string, FileError> ReadWholeFile(const std::filesystem::path& file,
                                                   std::size_t largest = kLargestFile);

/// Writes a file as a whole: first a new one beside it, which is on the disk before it takes the
/// old one's place, so that a failure leaves what was there before. A link is followed, the mode of
/// the old file is kept, and a write-protected file is not replaced.
std::optional<FileError> WriteWholeFile(const std::filesystem::path& file,
                                        std::string_view content);

/// A file that is written piece by piece and takes its place when all of it is there, as
/// WriteWholeFile does it. Without Finish nothing is left of it.
class PiecewiseFile {
 public:
  /// Makes the new file beside the one that it is to replace.
  explicit PiecewiseFile(const std::filesystem::path& file);
  ~PiecewiseFile();
  PiecewiseFile(const PiecewiseFile&) = delete;
  PiecewiseFile& operator=(const PiecewiseFile&) = delete;

  /// Adds a piece; does nothing once something failed.
  void Write(std::string_view piece);
  /// Puts the file in its place. Why that, or an earlier step, failed.
  std::optional<FileError> Finish();
  bool HasFailed() const { return !reason_.empty(); }

 private:
  std::filesystem::path file_, target_, beside_;
  std::FILE* stream_ = nullptr;
  std::string reason_;
};

/// The lines of a text, whether they end in CR LF or in LF alone; an end behind the last one starts
/// no further line.
std::vector<std::string> LinesOf(std::string_view text);

/// The text of a file of these lines, each of which ends in CR LF.
std::string TextOf(const std::vector<std::string>& lines);

}  // namespace corvane
