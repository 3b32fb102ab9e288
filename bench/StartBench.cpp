#include <QtWidgets>

#include "Turns.h"
#include "platform/BrowserLoader.h"
#include "platform/Pictures.h"
#include "windows/frame/Session.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/DisclaimerWindow.h"

// From the start of the process until its first window is painted, without any browser.

namespace corvane {

namespace {

/// Finishes once a window has been painted as a whole.
class FirstPaint : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!painting_ && event->type() == QEvent::Paint && widget && widget->isWindow()) {
      painting_ = true;
      QTimer::singleShot(0, this, [] { Finish(StartOfProcess()); });
    }
    return false;
  }

 private:
  bool painting_ = false;
};

int ShowFirstWindow(int argc, char** argv) {
  PrepareBrowser();
  QApplication application(argc, argv);
  QApplication::setWindowIcon(ProgramIcon());
  FirstPaint watch;
  application.installEventFilter(&watch);
  Session session;
  WindowRegistry windows(session);
  windows.Show<DisclaimerWindow>();
  return QApplication::exec();
}

int ShowBareWindow(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint watch;
  application.installEventFilter(&watch);
  QWidget window;
  window.resize(600, 450);
  window.show();
  return QApplication::exec();
}

/// As much to read and to press as the first window has, and nothing of the program behind it.
int ShowWindowOfWords(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint watch;
  application.installEventFilter(&watch);
  QWidget window;
  QVBoxLayout column(&window);
  QFont large;
  large.setPointSizeF(2 * large.pointSizeF());
  QLabel heading("Disclaimer");
  heading.setFont(large);
  QLabel text(QString("What has to be read before the program is used. ").repeated(8));
  text.setWordWrap(true);
  QPushButton agree("&Agree"), decline("&Decline"), help("&Help");
  for (QWidget* one : std::initializer_list<QWidget*>{&heading, &text, &agree, &decline, &help}) {
    column.addWidget(one);
  }
  window.show();
  return QApplication::exec();
}

constexpr TimedRun kFirstWindow = {"first-window", ShowFirstWindow};

constexpr Comparison kComparisons[] = {
    {"beside an empty window", kFirstWindow, {"bare-window", ShowBareWindow}},
    {"beside one with words", kFirstWindow, {"window-of-words", ShowWindowOfWords}},
};

}  // namespace

}  // namespace corvane

int main(int argc, char** argv) {
  return corvane::TakeTurns(corvane::kComparisons, argc, argv);
}
