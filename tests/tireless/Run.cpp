#include "Run.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <thread>
#include <utility>

#include <unistd.h>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>
#include <QtWidgets>

#include "Checks.h"
#include "Person.h"

namespace corvane {

namespace {

/// Milliseconds; CORVANE_LONGEST_ACT allows more on a machine that has other work too.
qint64 LongestAct() {
  static const int given = qEnvironmentVariableIntValue("CORVANE_LONGEST_ACT");
  return given > 0 ? given : 1000;
}
/// A window that so many acts do not leave cannot be left.
constexpr std::size_t kLongestStay = 2000;
constexpr std::size_t kActsBetweenWeighing = 1000;
/// The least of so many weighings holds no buffer of the browser that comes and goes. Its caches
/// fill during the first weighings; those after them are what later ones are compared with.
constexpr std::size_t kWeighings = 10;
constexpr std::size_t kFillingCaches = 30;
constexpr long kMostGrowth = 30;  // MiB

long ResidentMiB() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * sysconf(_SC_PAGESIZE) / (1024 * 1024);
}

struct Timed {
  qint64 milliseconds;
  std::size_t act;
  std::string windows;  ///< in front before and after the act
};

class Runner {
 public:
  explicit Runner(const std::vector<Act>& acts) : acts_(acts) {}

  int Run() {
    const std::jthread watch([this](const std::stop_token& stop) { Watch(stop); });
    while (next_ < acts_.size() && fault_.empty()) RunProgram();
    return Result();
  }

 private:
  /// From the first window to the end of the program.
  void RunProgram() {
    Session session;
    WindowRegistry windows(session);
    Person person;
    session_ = &session;
    windows_ = &windows;
    person_ = &person;
    windows.routes().ShowDisclaimer();
    QTimer::singleShot(0, qApp, [this] { Step(); });
    QApplication::exec();
    windows_ = nullptr;
  }

  /// An act may open a window that keeps its own loop of events: the next act is then done there.
  void Step() {
    if (!windows_ || windows_->HasEnded()) return;
    // A simulated key lets events through while its act is under way.
    const int loops = QThread::currentThread()->loopLevel();
    if (loops == actingIn_) return QTimer::singleShot(0, qApp, [this] { Step(); });
    Check();
    // At once, whatever windows are open.
    if (next_ >= acts_.size() || !fault_.empty()) std::_Exit(Result());
    QTimer::singleShot(0, qApp, [this] { Step(); });
    if (PutAwayDialog()) return;
    const std::size_t act = next_++;
    from_ = FrontName();
    ++actsIn_[from_];
    stay_ = from_ == stayedIn_ ? stay_ + 1 : 0;
    stayedIn_ = from_;
    longestStay_ = std::max(longestStay_, stay_);
    if (stay_ > kLongestStay) fault_ = "nothing leads out of " + Stuck();
    clock_.start();
    started_ = act;
    const int before = std::exchange(actingIn_, loops);
    person_->Do(acts_[act]);
    actingIn_ = before;
    Finished(act);
  }

  void Check() {
    Finished(started_);
    if (fault_.empty()) fault_ = FaultOf(*windows_, *session_);
    if (next_ % kActsBetweenWeighing == 0 && next_ != weighed_) Weigh();
  }

  void Finished(std::size_t act) {
    if (act != started_ || !clock_.isValid()) return;
    const bool waited = acts_[act].deed == Deed::Wait;
    if (!waited) slowest_.push_back({clock_.elapsed(), act, from_ + " -> " + FrontName()});
    if (!waited && clock_.elapsed() > LongestAct()) {
      fault_ = "held the windows for " + std::to_string(clock_.elapsed()) + " ms";
    }
    clock_.invalidate();
    std::sort(slowest_.begin(), slowest_.end(),
              [](const Timed& a, const Timed& b) { return a.milliseconds > b.milliseconds; });
    if (slowest_.size() > 10) slowest_.resize(10);
  }

  std::string FrontName() const {
    const Form* front = windows_ ? person_->Front(0) : nullptr;
    return front ? front->objectName().toStdString() : "";
  }

  /// The window that takes the acts, or the message that keeps them from all.
  std::string Stuck() const {
    const auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return message ? "the message: " + message->text().toStdString() : "the window " + from_;
  }

  static long LeastOf(std::vector<long>::const_iterator first) {
    return *std::min_element(first, first + kWeighings);
  }

  void Weigh() {
    weighed_ = next_;
    const long now = ResidentMiB();
    std::cout << next_ << " acts, " << now << " MiB" << std::endl;
    memory_.push_back(now);
    if (memory_.size() < kFillingCaches + 2 * kWeighings) return;
    const long before = LeastOf(memory_.begin() + kFillingCaches);
    const long since = LeastOf(memory_.end() - kWeighings);
    if (since - before > kMostGrowth) {
      fault_ =
          "memory grew from " + std::to_string(before) + " to " + std::to_string(since) + " MiB";
    }
  }

  /// An act that never comes back is told too.
  void Watch(const std::stop_token& stop) const {
    std::size_t seen = 0;
    for (int stuck = 0; !stop.stop_requested();
         std::this_thread::sleep_for(std::chrono::seconds(1))) {
      stuck = seen == next_ ? stuck + 1 : 0;
      seen = next_;
      if (stuck < 15) continue;
      std::cerr << "act " << seen << ": never came back" << std::endl;
      _exit(1);
    }
  }

  int Result() const {
    if (!fault_.empty()) std::cerr << "act " << next_ << ": " << fault_ << std::endl;
    for (const Timed& timed : slowest_) {
      std::cout << timed.milliseconds << " ms: " << TextOf(acts_[timed.act]) << "  "
                << timed.windows << std::endl;
    }
    for (const auto& [window, acts] : actsIn_) std::cout << acts << " acts in " << window << '\n';
    std::cout << "longest stay in one " << longestStay_ << std::endl;
    return fault_.empty() ? 0 : 1;
  }

  const std::vector<Act>& acts_;
  std::atomic<std::size_t> next_ = 0;
  std::size_t started_ = 0;
  std::string from_;
  std::map<std::string, std::size_t> actsIn_;  ///< by the window in front
  std::string stayedIn_;
  std::size_t stay_ = 0, longestStay_ = 0;  ///< acts in one window
  std::size_t weighed_ = 0;
  int actingIn_ = -1;         ///< the loop of events that an act was begun in
  std::vector<long> memory_;  ///< MiB, as weighed
  std::string fault_;
  QElapsedTimer clock_;
  std::vector<Timed> slowest_;
  Session* session_ = nullptr;
  WindowRegistry* windows_ = nullptr;
  Person* person_ = nullptr;
};

}  // namespace

int Run(const std::vector<Act>& acts) {
  return Runner(acts).Run();
}

}  // namespace corvane
