#include "portfolio/ResultFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace corvane {

ResultFile::ResultFile(const std::filesystem::path& path) {
  if (!path.empty()) file_.emplace(path);
}

bool ResultFile::Write(std::string_view text) {
  if (file_) {
    file_->Write(text);
    return !file_->HasFailed();
  }
  if (!error_ && std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
    error_ = {"-", std::generic_category().message(errno)};
  }
  return !error_;
}

std::optional<FileError> ResultFile::Finish() {
  if (file_) return file_->Finish();
  if (!error_ && std::fflush(stdout) != 0) {
    error_ = {"-", std::generic_category().message(errno)};
  }
  return error_;
}

}  // namespace corvane
