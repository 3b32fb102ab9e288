#include "platform/EndRequests.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

namespace corvane {

#ifdef Q_OS_UNIX

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

/// The writing end of the pipe that wakes the event loop.
volatile std::sig_atomic_t wakingEnd = -1;

/// Does only what a signal handler may do.
void Wake(int) {
  const int before = errno;
  [[maybe_unused]] const ssize_t written = write(wakingEnd, "", 1);
  errno = before;
}

/// Leaves alone what the program was started to ignore, as nohup does it.
void Handle(int signal, void (*handler)(int)) {
  struct sigaction action {};
  if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigaction(signal, &action, nullptr);
}

}  // namespace

struct EndRequests::Signals {
  explicit Signals(EndRequests& requests) {
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, &requests, [&requests, this] {
      char bytes[8];
      if (read(ends[0], bytes, sizeof bytes) > 0) emit requests.Requested();
    });
    wakingEnd = ends[1];
    for (const int signal : kSignals) Handle(signal, Wake);
  }

  ~Signals() {
    for (const int signal : kSignals) Handle(signal, SIG_DFL);
    for (const int end : ends) close(end);
  }

  int ends[2] = {-1, -1};
  std::unique_ptr<QSocketNotifier> notifier;
};

#else

struct EndRequests::Signals {
  explicit Signals(EndRequests&) {}
};

#endif

EndRequests::EndRequests() : signals_(std::make_unique<Signals>(*this)) {
  QCoreApplication::instance()->installEventFilter(this);
}

EndRequests::~EndRequests() = default;

bool EndRequests::eventFilter(QObject*, QEvent* event) {
  // This is how the end of the session arrives.
  if (event->type() != QEvent::Quit) return false;
  emit Requested();
  return true;
}

}  // namespace corvane
