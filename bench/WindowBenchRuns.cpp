#include "WindowBenchRuns.h"

#include <QtWidgets>

#include <QWebEngineView>

#include <chrono>
#include <cstdio>

#include "platform/BrowserLoader.h"
#include "platform/Pictures.h"
#include "platform/ProgramFolder.h"
#include "platform/WebView.h"
#include "reports/DisclosureReport.h"
#include "support/Paths.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/frame/Session.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/DisclaimerWindow.h"
#include "windows/start/MainMenu.h"

namespace corvane {

namespace {

/// Until a program that was just started, or has just shown a window, has come to rest.
constexpr int kRestMilliseconds = 700;

std::chrono::nanoseconds Now() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

/// Prints the time since then and ends the application.
void Finish(std::chrono::nanoseconds since) {
  std::printf("%.2f\n", std::chrono::duration<double, std::milli>(Now() - since).count());
  std::fflush(stdout);
  QCoreApplication::quit();
}

/// Finishes once a window has been painted as a whole.
class FirstPaint : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!painting_ && event->type() == QEvent::Paint && widget && widget->isWindow()) {
      painting_ = true;
      QTimer::singleShot(0, this, [] {
        Finish(std::chrono::nanoseconds(qEnvironmentVariable(kStartedAt).toLongLong()));
      });
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

void Press(Form* form, const char* button) {
  form->findChild<QAbstractButton*>(button)->click();
}

void Fill(Form* form, const char* field, const char* text) {
  form->findChild<QLineEdit*>(field)->setText(text);
}

/// From the main menu to the filled entry window.
void EnterAccount(WindowRegistry& windows) {
  Press(&windows.Show<MainMenu>(), "cmdAcctAdv");
  Press(windows.Find<DisclosureSetupWindow>(), "cmdNext");
  auto* entry = windows.Find<DisclosureEntryWindow>();
  Fill(entry, "txtDiscAPY", "5.39");
  Fill(entry, "txtBal", "1000.00");
  Fill(entry, "txtIntRateA", "5.25");
  Fill(entry, "txtTerm", "365");
}

void TimeCalculate(WindowRegistry& windows) {
  const auto start = Now();
  Press(windows.Find<DisclosureEntryWindow>(), "cmdCalculateResult");
  const auto* view = windows.Get<DisclosureResultsWindow>().findChild<WebView*>("WebView");
  QObject::connect(view, &WebView::Shown, view, [start](bool success) {
    if (success) Finish(start);
  });
}

int Calculate(int argc, char** argv) {
  PrepareBrowser();
  QApplication application(argc, argv);
  Session session;
  WindowRegistry windows(session);
  EnterAccount(windows);
  QTimer::singleShot(kRestMilliseconds, [&windows] { TimeCalculate(windows); });
  return QApplication::exec();
}

QUrl LastReport() {
  const auto path = DocumentsFolder() / "CORVANEWIN21" / kDisclosureReport.outputName;
  return QUrl::fromLocalFile(QString::fromStdString(PathText(path)));
}

int ShowBareWebView(int argc, char** argv) {
  PrepareBrowser();
  QApplication application(argc, argv);
  std::unique_ptr<QWebEngineView> view;
  QTimer::singleShot(kRestMilliseconds, [&view] {
    const auto start = Now();
    view = std::make_unique<QWebEngineView>();
    QObject::connect(view.get(), &QWebEngineView::loadFinished, [start](bool success) {
      if (success) Finish(start);
    });
    view->resize(800, 600);
    view->load(LastReport());
    view->show();
  });
  return QApplication::exec();
}

}  // namespace

const WindowRun kFirstWindow = {"first-window", ShowFirstWindow};
const WindowRun kBareWindow = {"bare-window", ShowBareWindow};
const WindowRun kCalculate = {"calculate", Calculate};
const WindowRun kBareWebView = {"bare-web-view", ShowBareWebView};

}  // namespace corvane
