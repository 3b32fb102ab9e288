#include <algorithm>
#include <csignal>
#include <map>

#include "platform/HelpView.h"
#include "platform/WebView.h"
#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/help/HelpWindow.h"
#include "windows/start/DisclaimerWindow.h"
#include "windows/start/MainMenu.h"

namespace corvane {
namespace {

QByteArray Content(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool IsEngineLoaded() {
  return Content("/proc/self/maps").contains("WebEngineCore");
}

qint64 ParentOf(const QString& process) {
  // "pid (name) state parent": a name may hold blanks.
  const QByteArray stat = Content("/proc/" + process + "/stat");
  return stat.mid(stat.lastIndexOf(')')).split(' ').value(2).toLongLong();
}

/// Kills the processes that draw the engine's pages; how many there were. The engine starts one
/// process, or with its sandbox two in a row, that make these.
int KillHelpers() {
  std::map<qint64, qint64> parents;
  for (const QString& process : QDir("/proc").entryList(QDir::Dirs)) {
    const bool isEngine = Content("/proc/" + process + "/cmdline").contains("QtWebEngineProcess");
    if (isEngine) parents[process.toLongLong()] = ParentOf(process);
  }
  int killed = 0;
  for (const auto& [process, parent] : parents) {
    qint64 above = parent;
    while (parents.contains(above)) above = parents[above];
    const bool isMaker = std::ranges::any_of(
        parents, [one = process](const auto& other) { return other.second == one; });
    const bool isOurs = above == QCoreApplication::applicationPid();
    if (isOurs && above != parent && !isMaker) killed += kill(pid_t(process), SIGKILL) == 0;
  }
  return killed;
}

class BrowserModule : public WindowTest {};

TEST_F(BrowserModule, IsLoadedWithTheFirstAccountAndNotBefore) {
  if (IsEngineLoaded()) GTEST_SKIP() << "by an earlier test of the same process";
  windows.Show<DisclaimerWindow>();
  InFront<DisclaimerWindow>();
  windows.Show<MainMenu>();
  InFront<MainMenu>();
  EXPECT_FALSE(IsEngineLoaded());
  Click("cmdAcctAdv");
  InFront<DisclosureSetupWindow>();
  EXPECT_TRUE(QTest::qWaitFor(IsEngineLoaded, 20000));
}

TEST_F(BrowserModule, ReportsSurviveOneLossOfTheirHelperAndAreShownAgainAfterMore) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("report.html");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("<p>report</p>") > 0);
  file.close();
  WebView view(nullptr);
  view.resize(300, 200);
  view.show();
  const auto* notice = view.findChild<QLabel*>();
  QSignalSpy shown(&view, &WebView::Shown);
  for (int round = 0; round < 2; ++round) {
    view.ShowFile(path);
    for (const bool success : {true, true, false}) {
      ASSERT_TRUE(shown.count() || shown.wait(20000));
      EXPECT_EQ(shown.takeFirst().front().toBool(), success);
      EXPECT_EQ(notice->isVisible(), !success);
      EXPECT_TRUE(!success || KillHelpers() > 0);
    }
    EXPECT_EQ(notice->text(), "The report cannot be shown. It stands in " + path);
  }
}

TEST_F(BrowserModule, HelpSurvivesOneLossOfItsHelperAndSaysSoAfterMore) {
  windows.Show<MainMenu>();
  InFront<MainMenu>();
  Key(Qt::Key_F1);
  InFront<HelpWindow>();
  auto* view = Get<HelpView>("HelpView");
  const auto* notice = Get<QLabel>("lblNotice");
  QSignalSpy shown(view, &HelpView::Shown);
  const auto killShown = [&] {
    ASSERT_TRUE(shown.count() || shown.wait(20000));
    ASSERT_TRUE(QTest::qWaitFor([] { return KillHelpers() > 0; }, 20000));
    shown.clear();
  };
  for (int round = 0; round < 2; ++round) {
    killShown();
    killShown();
    EXPECT_TRUE(QTest::qWaitFor([notice] { return notice->isVisible(); }, 20000));
    EXPECT_EQ(notice->text(), "The topic cannot be shown. Choose it once more.");
    view->ShowTopic("main-menu.htm");
    EXPECT_FALSE(notice->isVisible());
  }
  EXPECT_TRUE(shown.count() || shown.wait(20000));
}

}  // namespace
}  // namespace corvane
