#include "windows/portfolio/BackgroundTask.h"

namespace corvane {

void BackgroundTask::Start(Work work) {
  Stop();
  cancel_ = false;
  running_ = true;
  thread_ = std::thread([this, work = std::move(work), run = run_] {
    done_ = work(cancel_);
    const auto finish = [this, run] {
      if (run == run_) Finish();
    };
    QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
  });
}

void BackgroundTask::Finish() {
  if (!running_) return;
  thread_.join();
  running_ = false;
  ++run_;
  if (const Done done = std::exchange(done_, {})) done();
}

void BackgroundTask::Stop() {
  Cancel();
  if (running_) thread_.join();
  running_ = false;
  ++run_;
  done_ = {};
}

}  // namespace corvane
