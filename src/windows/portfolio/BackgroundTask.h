#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include <QObject>

namespace corvane {

/// Work in a thread of its own, one at a time. What has to be done with its outcome is done in the
/// thread of the windows. A task that goes is cancelled, and waited for.
class BackgroundTask : public QObject {
 public:
  using Done = std::function<void()>;
  /// Runs in the thread, ends early once `cancel` is set, and gives what is done then.
  using Work = std::function<Done(const std::atomic<bool>& cancel)>;

  ~BackgroundTask() override { Stop(); }

  /// Starts the work; what was under way is stopped.
  void Start(Work work);
  bool IsRunning() const { return running_; }
  /// Lets the work end early; its outcome comes all the same.
  void Cancel() { cancel_ = true; }
  /// Waits for the work and does what is to be done, where that was not done yet.
  void Finish();
  /// Ends the work without an outcome.
  void Stop();

 private:
  std::thread thread_;
  std::atomic<bool> cancel_ = false;
  bool running_ = false;
  int run_ = 0;
  Done done_;
};

}  // namespace corvane
