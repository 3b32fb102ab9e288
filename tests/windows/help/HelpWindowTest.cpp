#include "windows/help/HelpWindow.h"

#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/start/AboutWindow.h"
#include "windows/start/DisclaimerWindow.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/InterestReportWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementResultsWindow.h"
#include "windows/statement/StatementSetupWindow.h"

namespace corvane {
namespace {

class Help : public WindowTest {
 protected:
  /// The help is in front, shows the topic and stands at it in the contents.
  void ExpectTopic(const QString& title) {
    const auto& help = InFront<HelpWindow>();
    // The browser is quick in an event loop only.
    QSignalSpy changed(&help, &QWidget::windowTitleChanged);
    while (help.windowTitle().section(" - ", 0, 0) != title && changed.wait()) {
    }
    EXPECT_EQ(help.windowTitle().toStdString(), title.toStdString() + " - Corvane Calculator Help");
    const auto* entry = Get<QTreeWidget>("treContents")->currentItem();
    EXPECT_EQ(entry ? entry->text(0).toStdString() : "", title.toStdString());
  }

  template <class AForm>
  void ExpectF1Opens(const QString& title) {
    windows.Get<AForm>().show();
    InFront<AForm>();
    Key(Qt::Key_F1);
    ExpectTopic(title);
  }

  void ClickEntry(const QString& title) {
    auto* contents = Get<QTreeWidget>("treContents");
    auto* entry = contents->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    ASSERT_TRUE(entry) << title.toStdString();
    contents->scrollToItem(entry);
    const QPoint place = contents->visualItemRect(entry).center();
    QWidget* window = contents->window();
    // What a window gets from the desktop does not reach it while a modal window keeps it away.
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      contents->viewport()->mapTo(window, place));
  }
};

TEST_F(Help, F1OpensTheTopicOfEachWindow) {
  ExpectF1Opens<DisclaimerWindow>("Disclaimer");
  ExpectF1Opens<AboutWindow>("About");
  ExpectF1Opens<MainMenu>("Main menu");
  ExpectF1Opens<CalendarPopup>("Calendar");
  ExpectF1Opens<DisclosureSetupWindow>("Disclosure setup");
  ExpectF1Opens<DisclosureEntryWindow>("Disclosure entry");
  ExpectF1Opens<TierTableWindow>("Tier table");
  ExpectF1Opens<DisclosureResultsWindow>("Results");
  ExpectF1Opens<StatementSetupWindow>("Statement setup");
  ExpectF1Opens<StatementEntryWindow>("Statement period");
  ExpectF1Opens<DailyBalancesWindow>("Daily balances");
  ExpectF1Opens<StatementResultsWindow>("Results");
  ExpectF1Opens<InterestReportWindow>("Interest report");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(IsVisible<HelpWindow>());
  EXPECT_FALSE(windows.HasEnded());
}

TEST_F(Help, TopicsAreReachedByContentsBackForwardAndFind) {
  windows.Show<DisclosureSetupWindow>();
  InFront<DisclosureSetupWindow>();
  Key(Qt::Key_F1);
  ExpectTopic("Disclosure setup");
  EXPECT_FALSE(IsEnabled("cmdBack"));
  ClickEntry("Tier table");
  ExpectTopic("Tier table");
  Click("cmdBack");
  ExpectTopic("Disclosure setup");
  Click("cmdForward");
  ExpectTopic("Tier table");
  Type("txtFind", "qwertz");
  Click("cmdFind");
  EXPECT_EQ(Caption("lblFound"), "No topic has all these words.");
  Type("txtFind", "daily balances");
  Key(Qt::Key_Return);
  Key(Qt::Key_Return);
  ExpectTopic("Daily balances");
}

TEST_F(Help, IsUsableBesideTheModalWindowThatAskedForIt) {
  windows.Show<MainMenu>();
  InFront<MainMenu>();
  WhenShown<AboutWindow>([this] {
    Key(Qt::Key_F1);
    ExpectTopic("About");
    ClickEntry("Main menu");
    ExpectTopic("Main menu");
    Click("cmdBack");
    ExpectTopic("About");
    InFront<AboutWindow>();
    CloseByFrame();
  });
  Menu("mnuAbout");
  InFront<HelpWindow>();
  Click("cmdForward");
  ExpectTopic("Main menu");
}

}  // namespace
}  // namespace corvane
