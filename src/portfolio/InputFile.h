#pragma once

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>

#include "support/Csv.h"
#include "support/WholeFile.h"

namespace corvane {

/// A file, pipe or standard input ("-") that is read from its beginning to its end.
class InputFile {
 public:
  /// Reading ends early once `cancel` is set.
  InputFile(const std::string& name, const std::atomic<bool>& cancel);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  CsvReader::Source Source();
  /// Why it could not be opened, or not read to its end.
  const std::optional<FileError>& Error() const { return error_; }
  /// How many bytes it has; 0 where that is not known.
  std::size_t Size() const { return size_; }

 private:
  void Fail();

  std::string name_;
  const std::atomic<bool>& cancel_;
  int descriptor_ = -1;
  std::size_t size_ = 0;
  std::optional<FileError> error_;
};

}  // namespace corvane
