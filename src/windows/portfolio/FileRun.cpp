#include "windows/portfolio/FileRun.h"

#include <thread>

namespace corvane {

namespace {

constexpr int kHandOverEvery = 40;  // ms

/// One processor is left to the window.
int ThreadCount() {
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()) - 1);
}

}  // namespace

FileRun::FileRun() {
  timer_.setInterval(kHandOverEvery);
  timer_.callOnTimeout([this] { HandOver(); });
}

void FileRun::Start(const PortfolioFiles& files) {
  Stop();
  progress_ = {};
  task_.Start([this, files](const std::atomic<bool>& cancel) -> BackgroundTask::Done {
    const auto take = [this](std::shared_ptr<const CheckedPart> part,
                             const FileCheckProgress& progress) {
      const std::scoped_lock lock(mutex_);
      parts_.push_back(std::move(part));
      progress_ = progress;
    };
    auto end = std::make_shared<FileCheckEnd>(CheckFile(files, ThreadCount(), cancel, take));
    return [this, end] {
      timer_.stop();
      HandOver();
      emit Ended(*end);
    };
  });
  timer_.start();
}

void FileRun::Stop() {
  task_.Stop();
  timer_.stop();
  parts_.clear();
}

void FileRun::HandOver() {
  CheckedParts parts;
  FileCheckProgress progress;
  {
    const std::scoped_lock lock(mutex_);
    parts.swap(parts_);
    progress = progress_;
  }
  if (!parts.empty()) emit Arrived(parts, progress);
}

}  // namespace corvane
