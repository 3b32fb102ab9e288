#include "support/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>
#include <utility>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace corvane {

namespace {

using std::filesystem::path;

/// Streams tell that they failed but not why; errno still holds the reason of the system call that
/// made them fail.
std::string LastReason() {
  return std::generic_category().message(errno != 0 ? errno : EIO);
}

/// Why what stands there is no file; empty for a file, and where nothing stands.
std::string WhyNoFile(const path& file) {
  std::error_code failure;
  const auto status = std::filesystem::status(file, failure);
  if (status.type() == std::filesystem::file_type::not_found || is_regular_file(status)) return "";
  if (failure) return failure.message();
  return is_directory(status) ? std::generic_category().message(EISDIR) : "Not a regular file";
}

/// Why the file must not be replaced, though its folder may let it happen; empty when it may.
std::string WhyNotReplaced(const path& file) {
  using std::filesystem::perms;
  if (std::string reason = WhyNoFile(file); !reason.empty()) return reason;
  std::error_code failure;
  const auto status = std::filesystem::status(file, failure);
  if (!exists(status)) return "";
  // The superuser may write what nobody is meant to write.
  const auto write = perms::owner_write | perms::group_write | perms::others_write;
  if ((status.permissions() & write) == perms::none) return std::generic_category().message(EACCES);
  errno = 0;
  return std::ofstream(file, std::ios::binary | std::ios::app) ? "" : LastReason();
}

/// The file that a link leads to, which need not exist yet; any other path as it is.
path Followed(path file) {
  constexpr int kMostLinks = 40;
  std::error_code failure;
  for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(file, failure); ++i) {
    file = file.parent_path() / std::filesystem::read_symlink(file, failure);
  }
  return file;
}

struct NewFile {
  path name;
  std::FILE* stream = nullptr;
};

/// Makes a file under a name that none had, in the folder of the one that it is to replace; no
/// stream where that fails.
NewFile MakeBeside(const path& file) {
  for (int number = 1;; ++number) {
    const path name = file.parent_path() / (".corvane" + std::to_string(number) + ".new");
    errno = 0;
    std::FILE* stream = std::fopen(name.string().c_str(), "wbx");
    if (stream || errno != EEXIST) return {name, stream};
  }
}

/// Puts what was written on the disk, where the file system knows how to.
bool Sync([[maybe_unused]] std::FILE* stream) {
#if __has_include(<unistd.h>)
  return fsync(fileno(stream)) == 0 || errno == EINVAL;
#else
  return true;
#endif
}

}  // namespace

std::variant<std::string, FileError> ReadWholeFile(const path& file, std::size_t largest) {
  // A pipe would keep the program waiting.
  if (std::string reason = WhyNoFile(file); !reason.empty()) return FileError{file, reason};
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (!in) return FileError{file, LastReason()};
  std::string content;
  char block[16384];
  while (in.read(block, sizeof block) || in.gcount() > 0) {
    content.append(block, static_cast<std::size_t>(in.gcount()));
    if (content.size() > largest) {
      return FileError{file, "The file is larger than " + std::to_string(largest >> 20) + " MiB"};
    }
  }
  if (in.bad()) return FileError{file, LastReason()};
  return content;
}

std::optional<FileError> WriteWholeFile(const path& file, std::string_view content) {
  PiecewiseFile whole(file);
  whole.Write(content);
  return whole.Finish();
}

PiecewiseFile::PiecewiseFile(const path& file) : file_(file), target_(Followed(file)) {
  reason_ = WhyNotReplaced(target_);
  if (HasFailed()) return;
  const NewFile beside = MakeBeside(target_);
  beside_ = beside.name;
  stream_ = beside.stream;
  if (!stream_) {
    reason_ = LastReason();
    return;
  }
  std::error_code failure;
  const auto replaced = std::filesystem::status(target_, failure);
  // Before the content: nobody reads it who could not read the old one.
  if (exists(replaced)) std::filesystem::permissions(beside_, replaced.permissions(), failure);
}

PiecewiseFile::~PiecewiseFile() {
  if (!stream_) return;
  std::fclose(stream_);
  std::error_code failure;
  std::filesystem::remove(beside_, failure);
}

void PiecewiseFile::Write(std::string_view piece) {
  if (HasFailed()) return;
  errno = 0;
  if (std::fwrite(piece.data(), 1, piece.size(), stream_) != piece.size()) reason_ = LastReason();
}

std::optional<FileError> PiecewiseFile::Finish() {
  errno = 0;
  if (!HasFailed() && (std::fflush(stream_) != 0 || !Sync(stream_))) reason_ = LastReason();
  if (stream_) std::fclose(std::exchange(stream_, nullptr));
  std::error_code failure;
  if (!HasFailed()) std::filesystem::rename(beside_, target_, failure);
  if (failure) reason_ = failure.message();
  if (!HasFailed()) return std::nullopt;
  if (!beside_.empty()) std::filesystem::remove(beside_, failure);
  return FileError{file_, reason_};
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
