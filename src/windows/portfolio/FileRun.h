#pragma once

#include <mutex>

#include <QTimer>

#include "portfolio/FileCheck.h"
#include "windows/portfolio/BackgroundTask.h"

namespace corvane {

/// Checks a file beside the window. What it gives is handed over in bulk, a few times a second.
class FileRun : public QObject {
  Q_OBJECT

 public:
  FileRun();

  void Start(const PortfolioFiles& files);
  bool IsRunning() const { return task_.IsRunning(); }
  void Cancel() { task_.Cancel(); }
  /// Ends the run without a word.
  void Stop();

 signals:
  void Arrived(const CheckedParts& parts, const FileCheckProgress& progress);
  void Ended(const FileCheckEnd& end);

 private:
  void HandOver();

  QTimer timer_;
  std::mutex mutex_;
  CheckedParts parts_;  ///< that were not handed over
  FileCheckProgress progress_;
  BackgroundTask task_;
};

}  // namespace corvane
