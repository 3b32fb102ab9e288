#include <QtWidgets>

#include <QWebEngineView>

#include "Turns.h"
#include "platform/BrowserLoader.h"
#include "platform/ProgramFolder.h"
#include "platform/WebView.h"
#include "reports/DisclosureReport.h"
#include "support/Paths.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/frame/Session.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/MainMenu.h"

// From Calculate until the report stands, beside a web view that shows the same file.

namespace corvane {

namespace {

/// Until a program that has just shown a window or a page has come to rest.
constexpr int kRestMilliseconds = 700;

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

/// Presses Calculate and, when the report stands, goes on with the time at which it was pressed.
void Calculate(WindowRegistry& windows, const std::function<void(double start)>& then) {
  const double start = Now();
  Press(windows.Find<DisclosureEntryWindow>(), "cmdCalculateResult");
  const auto* view = windows.Get<DisclosureResultsWindow>().findChild<WebView*>("WebView");
  QObject::connect(
      view, &WebView::Shown, view,
      [start, then](bool success) {
        if (success) then(start);
      },
      Qt::SingleShotConnection);
}

int ShowFirstReport(int argc, char** argv) {
  PrepareBrowser();
  QApplication application(argc, argv);
  Session session;
  WindowRegistry windows(session);
  EnterAccount(windows);
  QTimer::singleShot(kRestMilliseconds, [&windows] { Calculate(windows, Finish); });
  return QApplication::exec();
}

int ShowLaterReport(int argc, char** argv) {
  PrepareBrowser();
  QApplication application(argc, argv);
  Session session;
  WindowRegistry windows(session);
  EnterAccount(windows);
  const auto again = [&windows](double) {
    Press(windows.Find<DisclosureResultsWindow>(), "cmdBack");
    QTimer::singleShot(kRestMilliseconds, [&windows] { Calculate(windows, Finish); });
  };
  QTimer::singleShot(kRestMilliseconds, [&windows, again] { Calculate(windows, again); });
  return QApplication::exec();
}

/// Shows the last report in a web view that has shown another page before, in a window that is
/// hidden until then, as the results are.
int ShowInWarmWebView(int argc, char** argv) {
  PrepareBrowser();
  QApplication application(argc, argv);
  QWebEngineView view;
  view.resize(800, 600);
  view.setHtml("<p>warm</p>");
  view.show();
  QTimer::singleShot(kRestMilliseconds, &view, &QWidget::hide);
  QTimer::singleShot(2 * kRestMilliseconds, [&view] {
    const auto path = DocumentsFolder() / "CORVANEWIN21" / kDisclosureReport.outputName;
    const double start = Now();
    QObject::connect(&view, &QWebEngineView::loadFinished, [start](bool success) {
      if (success) Finish(start);
    });
    view.load(QUrl::fromLocalFile(QString::fromStdString(PathText(path))));
    view.show();
  });
  return QApplication::exec();
}

constexpr TimedRun kWarmWebView = {"warm-web-view", ShowInWarmWebView};

constexpr Comparison kComparisons[] = {
    {"first report", {"first-report", ShowFirstReport}, kWarmWebView},
    {"later report", {"later-report", ShowLaterReport}, kWarmWebView},
};

}  // namespace

}  // namespace corvane

int main(int argc, char** argv) {
  return corvane::TakeTurns(corvane::kComparisons, argc, argv);
}
