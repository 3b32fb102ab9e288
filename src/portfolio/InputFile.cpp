#include "portfolio/InputFile.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "support/Paths.h"

namespace corvane {

InputFile::InputFile(const std::string& name, const std::atomic<bool>& cancel)
    : name_(name), cancel_(cancel) {
  descriptor_ = name == "-" ? STDIN_FILENO : open(name.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  bool failed = descriptor_ < 0 || fstat(descriptor_, &status) != 0;
  if (!failed && S_ISDIR(status.st_mode)) {
    failed = true;
    errno = EISDIR;
  }
  if (failed) Fail();
  if (S_ISREG(status.st_mode)) size_ = static_cast<std::size_t>(status.st_size);
}

InputFile::~InputFile() {
  if (descriptor_ > STDIN_FILENO) close(descriptor_);
}

void InputFile::Fail() {
  error_ = {PathOf(name_), std::generic_category().message(errno)};
}

CsvReader::Source InputFile::Source() {
  return [this](std::span<char> block) -> std::size_t {
    constexpr int kLookUpEvery = 100;  // ms, so that a pipe that is silent can be left
    while (!cancel_ && !error_) {
      pollfd waiting{descriptor_, POLLIN, 0};
      if (poll(&waiting, 1, kLookUpEvery) == 0) continue;
      const ssize_t count = read(descriptor_, block.data(), block.size());
      if (count >= 0) return static_cast<std::size_t>(count);
      if (errno != EINTR && errno != EAGAIN) Fail();
    }
    return 0;
  };
}

}  // namespace corvane
