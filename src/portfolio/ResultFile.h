#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "support/WholeFile.h"

namespace corvane {

/// Where the results go: standard output, or a file that takes its place when it is complete.
class ResultFile {
 public:
  /// An empty path is standard output.
  explicit ResultFile(const std::filesystem::path& path);

  /// False once something could not be written.
  bool Write(std::string_view text);
  bool HasFailed() const { return file_ ? file_->HasFailed() : error_.has_value(); }
  /// Why the results could not be written.
  std::optional<FileError> Finish();

 private:
  std::optional<PiecewiseFile> file_;
  std::optional<FileError> error_;
};

}  // namespace corvane
