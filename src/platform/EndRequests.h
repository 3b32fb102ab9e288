#pragma once

#include <memory>

#include <QObject>

namespace corvane {

/// Tells when the program is asked to end from outside, so that it can end between two acts and
/// not in the middle of one: when the desktop's session ends, and when the system sends SIGTERM,
/// SIGHUP or SIGINT. Qt itself would close the windows one by one as their frames do, and stop at
/// the first that only closes. A second signal of a kind ends the process at once. One at a time.
class EndRequests : public QObject {
  Q_OBJECT

 public:
  EndRequests();
  ~EndRequests() override;

 signals:
  void Requested();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct Signals;

  std::unique_ptr<Signals> signals_;
};

}  // namespace corvane
