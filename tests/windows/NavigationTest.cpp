#include <csignal>

#include "platform/EndRequests.h"
#include "platform/MessageBox.h"
#include "platform/ProgramFolder.h"
#include "support/Paths.h"
#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/start/AboutWindow.h"
#include "windows/start/DisclaimerWindow.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementSetupWindow.h"

namespace corvane {
namespace {

class Navigation : public WindowTest {
 protected:
  template <class AForm>
  void Open() {
    windows.Show<AForm>();
    InFront<AForm>();
  }

  /// A press as the window system sends it, at a place of the screen and a time.
  void PressMouse(const QPoint& place, quint64 milliseconds) {
    QWindow* window = Front()->windowHandle();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, window->mapFromGlobal(place), place, Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
      event.setTimestamp(milliseconds);
      QCoreApplication::sendEvent(window, &event);
    }
  }
  static void PressEnter(const QWidget& window, quint64 milliseconds, bool held = false) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, {}, "\r", held);
    event.setTimestamp(milliseconds);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
  }
};

TEST_F(Navigation, ADoubleClickThatChangesTheWindowIsOnePress) {
  const struct {
    QPoint away;
    quint64 later;
    bool acts;
  } seconds[] = {{{}, 200, false}, {{50, 0}, 200, true}, {{}, 1000, true}};
  for (const auto& second : seconds) {
    Open<DisclaimerWindow>();
    auto* leave = Get<QPushButton>("cmdOK");
    const QPoint place = leave->mapToGlobal(leave->rect().center());
    PressMouse(place, 5000);
    QWidget& menu = InFront<MainMenu>();
    auto* under = Get<QPushButton>("cmdStatement");
    menu.move(menu.pos() + place + second.away - under->mapToGlobal(under->rect().center()));
    PressMouse(place + second.away, 5000 + second.later);
    EXPECT_EQ(IsVisible<StatementSetupWindow>(), second.acts) << second.later;
    EXPECT_NE(IsVisible<MainMenu>(), second.acts);
  }
}

TEST_F(Navigation, AKeyThatChangesTheWindowActsOnceWhetherPressedTwiceOrHeld) {
  Open<DisclaimerWindow>();
  PressEnter(*Front(), 5000);
  InFront<MainMenu>();
  PressEnter(*Front(), 5200);
  PressEnter(*Front(), 9000, true);
  EXPECT_TRUE(IsVisible<MainMenu>());
  PressEnter(*Front(), 15000);
  EXPECT_FALSE(IsVisible<MainMenu>());
}

TEST_F(Navigation, TheKeyThatRaisesAMessageNeitherClosesItNorRaisesItAgain) {
  Open<DisclosureSetupWindow>();
  Get<QLineEdit>("txtDailyCompounding")->setText("32768");
  int messages = 0;
  SetMessageBoxObserver([&messages](QMessageBox& box) {
    ++messages;
    PressEnter(box, 5200);
    PressEnter(box, 9000, true);
    EXPECT_TRUE(box.isVisible());
    PressEnter(box, 15000);
    EXPECT_FALSE(box.isVisible());
  });
  PressEnter(*Front(), 5000);
  PressEnter(*Front(), 15200);
  PressEnter(*Front(), 16000, true);
  EXPECT_EQ(messages, 1);
}

TEST_F(Navigation, AWindowThatIsLeftOrBelowAnotherTakesNoInput) {
  Open<MainMenu>();
  auto* other = Get<QPushButton>("cmdAcctAdv");
  WhenShown<AboutWindow>([this, other] {
    other->click();
    CloseByFrame();
  });
  Menu("mnuAbout");
  InFront<MainMenu>();
  Click("cmdStatement");
  other->click();
  InFront<StatementSetupWindow>();
  auto* name = Get<QLineEdit>("txtName");
  Click("cmdExit");
  QTest::keyClicks(name, "Bank");
  EXPECT_EQ(session.header.institution, "");
}

TEST_F(Navigation, EscapeOnTheMainMenuEndsTheProcessAtOnceUnlessItLeavesTheMenuBar) {
  Open<MainMenu>();
  session.header.institution = "First Bank";
  Key(Qt::Key_Tab);
  Key(Qt::Key_F10);
  EXPECT_EQ(QApplication::activePopupWidget(), Get<QMenu>("mnuFile"));
  Key(Qt::Key_Escape);
  Key(Qt::Key_Escape);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, {}, true);
  QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
  EXPECT_FALSE(windows.HasEnded());
  Key(Qt::Key_Escape);
  EXPECT_TRUE(windows.HasEnded());
  EXPECT_EQ(session.header.institution, "First Bank")
      << "the orderly way out would have cleared it";
}

TEST_F(Navigation, ExitOfTheDisclaimerEndsTheProcessWhateverElseIsOpen) {
  Open<DisclaimerWindow>();
  session.header.institution = "First Bank";
  Click("cmdAbout");
  InFront<AboutWindow>();
  QTimer::singleShot(0, [this] {
    InFront<DisclaimerWindow>();
    Click("cmdExit");
  });
  QTimer watchdog;
  QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(1); });
  watchdog.start(5000);
  EXPECT_EQ(QApplication::exec(), 0) << "the process goes on";
  EXPECT_EQ(session.header.institution, "First Bank") << "no window was closed as by its frame";
}

TEST_F(Navigation, SignalsAndTheEndOfTheSessionEndTheProcessFromAModalWindowToo) {
  const EndRequests requests;
  QObject::connect(&requests, &EndRequests::Requested, [this] { windows.EndProcess(); });
  QTimer watchdog;
  QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(1); });
  watchdog.start(5000);
  const auto sessionEnds = [] {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
  };
  for (const std::function<void()>& ask : {std::function<void()>([] { std::raise(SIGTERM); }),
                                           {[] { std::raise(SIGHUP); }},
                                           {[] { std::raise(SIGINT); }},
                                           {sessionEnds}}) {
    Open<MainMenu>();
    session.header.institution = "First Bank";
    QTimer::singleShot(0, [this, &ask] {
      WhenShown<AboutWindow>(ask);
      Menu("mnuAbout");
    });
    EXPECT_EQ(QApplication::exec(), 0) << "the process goes on";
    EXPECT_TRUE(IsVisible<AboutWindow>()) << "no window was closed as by its frame";
    windows.Discard<AboutWindow>();
  }
}

TEST_F(Navigation, TheProgramEndsUnderAWindowThatWaitsForAnother) {
  session.workflow = Workflow::Statement;
  session.statement.setup = StatementSetupAtStart();
  Open<StatementEntryWindow>();
  Choose("optADB");
  for (const auto& [field, text] : {std::pair{"txtMinADB", "0"},
                                    {"txtMinDBal", "0"},
                                    {"txtDClApy", "5"},
                                    {"txtIntRate", "5"},
                                    {"txtLedgerdays", "2"}}) {
    Type(field, text);
  }
  const QPointer<Form> waits = Front();
  bool returned = false;
  QTimer::singleShot(0, qApp, [&] {
    WhenShown<DailyBalancesWindow>([this] {
      QPointer<Form> above;
      WhenShown<AboutWindow>([&] {
        above = Front();
        CloseByFrame();
      });
      windows.RunModal(windows.Get<AboutWindow>());
      EXPECT_TRUE(QTest::qWaitFor([&] { return !above; })) << "no handler waits for it";
      InFront<DailyBalancesWindow>();
      Type("txtDayBal(0)", "7");
      windows.EndProgram();
      windows.routes().StartDisclosure();
    });
    Click("cmdComputeLADB");
    returned = true;
    ASSERT_TRUE(waits) << "the window's handler has come back to it";
    EXPECT_EQ(waits->findChild<QLineEdit*>("txtLedgerdays")->text(), "2");
  });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(returned);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(waits) << "deleted by the registry alone";
  for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
}

TEST_F(Navigation, AMessageGoesWithItsWindow) {
  Open<MainMenu>();
  Open<StatementEntryWindow>();
  bool wentByItself = true;
  SetMessageBoxObserver([&](QMessageBox& box) {
    windows.routes().ShowMainMenu();
    QTimer::singleShot(2000, &box, [&] {
      wentByItself = false;
      box.reject();
    });
  });
  QTimer::singleShot(0, qApp, [this] {
    Click("cmdCalculate");
    QCoreApplication::exit();
  });
  QApplication::exec();
  EXPECT_TRUE(wentByItself);
  InFront<MainMenu>();
}

TEST_F(Navigation, AScreenReaderHearsCaptionsAsTheyAreNow) {
  const auto nameOf = [this](const char* control) {
    return QAccessible::queryAccessibleInterface(Get<QWidget>(control))
        ->text(QAccessible::Name)
        .toStdString();
  };
  Open<DisclosureSetupWindow>();
  EXPECT_EQ(nameOf("Label6"), "");
  const std::string byDays = nameOf("txtDailyCompounding");
  Choose("optICMonths");
  QCoreApplication::processEvents();
  EXPECT_NE(nameOf("txtDailyCompounding"), byDays);
  EXPECT_EQ(nameOf("txtDailyCompounding"), nameOf("lblDailyCompounding"));
  Open<StatementEntryWindow>();
  auto* balances = QAccessible::queryAccessibleInterface(Get<QFrame>("fraLed_Coll"));
  EXPECT_EQ(balances->role(), QAccessible::Grouping);
  EXPECT_EQ(nameOf("fraLed_Coll"), "Ledger and collected balances");
}

TEST_F(Navigation, TheTitleScreenOptionIsKeptInTheSettingsFile) {
  QFile settings(QString::fromStdString(PathText(SettingsFile())));
  settings.remove();
  Open<MainMenu>();
  for (const bool checked : {true, false, true}) {
    Menu("mnuShowTitle");
    EXPECT_EQ(Get<QAction>("mnuShowTitle")->isChecked(), checked);
    ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
    EXPECT_EQ(settings.readAll().toStdString(),
              checked ? "[Options]\r\nStartup Intro=Yes\r\n" : "[Options]\r\nStartup Intro=No\r\n");
    settings.close();
  }
  windows.Discard<MainMenu>();
  Open<MainMenu>();
  EXPECT_TRUE(Get<QAction>("mnuShowTitle")->isChecked());
  settings.remove();
}

}  // namespace
}  // namespace corvane
