#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/frame/PageLayout.h"
#include "windows/help/HelpWindow.h"
#include "windows/portfolio/PortfolioReportWindow.h"
#include "windows/portfolio/PortfolioWindow.h"
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

std::string NameOf(const QObject* object) {
  return object->objectName().toStdString();
}

/// The controls that the Tab key reaches, in its order.
std::vector<QWidget*> TabOrder(QWidget& form) {
  std::vector<QWidget*> order;
  for (QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
    const bool reached = next->window() == &form && next->isVisible() && next->isEnabled() &&
                         (next->focusPolicy() & Qt::TabFocus);
    if (reached && !next->focusProxy()) order.push_back(next);
  }
  return order;
}

QRect PlaceIn(const QWidget& form, const QWidget& control) {
  return {control.mapTo(&form, QPoint()), control.size()};
}

/// The column beside the form's body is read last.
bool StandsBeside(const QWidget* control) {
  return qobject_cast<const QDockWidget*>(control->parent());
}

void ExpectReadingOrder(QWidget& form) {
  std::vector<QWidget*> order = TabOrder(form);
  EXPECT_FALSE(order.empty());
  const auto isHigher = [&form](const QWidget* one, const QWidget* other) {
    return std::pair(StandsBeside(one), PlaceIn(form, *one).top()) <
           std::pair(StandsBeside(other), PlaceIn(form, *other).top());
  };
  std::rotate(order.begin(), std::min_element(order.begin(), order.end(), isHigher), order.end());
  for (std::size_t i = 1; i < order.size(); ++i) {
    const QRect before = PlaceIn(form, *order[i - 1]), now = PlaceIn(form, *order[i]);
    const bool sameRow = now.top() <= before.center().y() && before.top() <= now.center().y();
    // A group may be read column by column.
    const bool nextColumn =
        now.left() > before.right() &&
        (StandsBeside(order[i]) || order[i]->parent() == order[i - 1]->parent());
    // Whoever has typed a page goes on first.
    if (NameOf(order[i - 1]) == "cmdNext" && NameOf(order[i]) == "cmdPrevious") continue;
    EXPECT_TRUE(nextColumn || (sameRow ? now.left() > before.left() : now.top() > before.top()))
        << NameOf(order[i - 1]) << " is followed by " << NameOf(order[i]);
  }
}

/// What a screen reader makes of a window's parts, and of theirs: every control that takes keys has
/// a name, an option stands in a named group, and no name is padded.
void ExpectReadable(const QAccessibleInterface& part) {
  const auto state = part.state();
  const auto role = part.role();
  const QString name = part.text(QAccessible::Name);
  SCOPED_TRACE("'" + name.toStdString() + "' " + (part.object() ? NameOf(part.object()) : ""));
  const bool takesKeys = state.focusable && role != QAccessible::StaticText;
  EXPECT_FALSE(takesKeys && name.isEmpty());
  EXPECT_TRUE(name == name.simplified() && !name.endsWith(" :"));
  if (role == QAccessible::RadioButton) {
    EXPECT_EQ(part.parent()->role(), QAccessible::Grouping);
    EXPECT_NE(part.parent()->text(QAccessible::Name), "");
  }
  if (role == QAccessible::ComboBox) return;
  for (int index = 0; index < part.childCount(); ++index) {
    const auto& child = *part.child(index);
    if (!child.state().invisible) ExpectReadable(child);
  }
}

/// Every control stands in the window whole, once the body is scrolled to it where it may scroll,
/// which is up and down only; the buttons below it are never scrolled.
void ExpectInSight(QWidget& form, bool mayScroll) {
  for (auto* area : form.findChildren<QScrollArea*>()) {
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(mayScroll || area->verticalScrollBar()->maximum() == 0) << "is too high";
  }
  for (auto* control : form.findChildren<QWidget*>()) {
    const bool counts = control->inherits("QAbstractButton") || control->inherits("QLabel") ||
                        control->inherits("QLineEdit") || control->inherits("QComboBox");
    if (!counts || !control->isVisible() || control->size().isEmpty()) continue;
    for (auto* area : form.findChildren<QScrollArea*>()) {
      if (area->widget()->isAncestorOf(control)) area->ensureWidgetVisible(control);
    }
    EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect()) << NameOf(control);
    const bool fixed = control->minimumWidth() == control->maximumWidth();
    EXPECT_TRUE(fixed || control->width() >= control->minimumSizeHint().width()) << NameOf(control);
  }
}

/// The longest text of a field is seen from its first character on.
void ExpectRoomForDigits(QWidget& form) {
  const std::map<QString, QStringList> longest = {
      {"9999999999999.99",
       {"txtBal", "txt_bne(9)", "TxtAbove(10)", "txtMinADB", "txtMinDBal", "txtIntAmt",
        "txtADBLedgerBalance", "txtADBCollectedBalance"}},
      {"100.0000", {"txtIntRateA", "txtDiscAPY", "txtIntRate", "txtInt(10)"}},
      {"99999999.99", {"txtDayBal(0)"}},
      {"12-28-2026", {"tStartDate", "tEndDate", "txtDateStart", "txtDateEnd"}},
      {"99999", {"txtTerm", "txtLedgerdays", "txtColDays", "txtBtwnReqIntWdrwl"}},
      {"1/365", {"txtDailyRateFactor", "txtDRFactor"}}};
  for (const auto& [text, names] : longest) {
    for (auto* field : form.findChildren<QLineEdit*>()) {
      if (!names.contains(field->objectName())) continue;
      const QSignalBlocker quiet(field);
      const QString before = field->text();
      field->setText(text);
      field->grab();  // scrolls to the end where the text does not fit
      EXPECT_EQ(field->cursorPositionAt({field->height() / 4, field->height() / 2}), 0)
          << NameOf(field);
      field->setText(before);
    }
  }
}

/// A small screen, and most of what a desktop puts around a window.
constexpr QSize kScreen(1024, 768);
constexpr QSize kFrame(12, 44);

class FormLayout : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    session.disclosure.setup.kind = AccountKind::Stepped;
    session.disclosure.setup.withdrawal = Unit::Months;
    session.statement.setup.kind = AccountKind::Stepped;
    daily_.account.kind = AccountKind::Stepped;
    daily_.days.resize(kDaysPerPage, {"99999999.99", "10.1234"});
  }
  void TearDown() override {
    QApplication::setFont(font_);
    WindowTest::TearDown();
  }

  void ExamineEveryWindow(int points) {
    QFont font = font_;
    font.setPointSize(points);
    QApplication::setFont(font);
    mayScroll_ = points > 10;
    windows.Get<TierTableWindow>().findChild<QComboBox*>("cboTotalTiers")->setCurrentIndex(8);
    Examine<DisclaimerWindow, MainMenu, AboutWindow, HelpWindow, CalendarPopup, TierTableWindow,
            DisclosureSetupWindow, DisclosureEntryWindow, DisclosureResultsWindow,
            StatementSetupWindow, StatementEntryWindow, StatementResultsWindow,
            InterestReportWindow, PortfolioWindow, PortfolioReportWindow>();
  }

  void ExamineDays() {
    windows.Get<DailyBalancesWindow>().Edit(daily_, computed_);
    Examine<DailyBalancesWindow>();
  }

 private:
  template <class... AForm>
  void Examine() {
    (Examine(windows.Get<AForm>()), ...);
  }

  void Examine(Form& form) {
    SCOPED_TRACE(NameOf(&form));
    const bool isPage = form.WindowRole() == Form::Role::Main || ShowsLongText(form);
    form.resize((isPage ? PageSize(form) : form.sizeHint()).boundedTo(kScreen - kFrame));
    form.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    EXPECT_TRUE(form.width() <= kScreen.width() - kFrame.width() &&
                form.height() <= kScreen.height() - kFrame.height())
        << "needs " << form.width() << " x " << form.height();
    EXPECT_LE(form.minimumSizeHint().height(), kScreen.height() / 2 - kFrame.height())
        << "at 200 percent its buttons leave the screen";
    if (!mayScroll_) ExpectReadingOrder(form);
    ExpectReadable(*QAccessible::queryAccessibleInterface(form.centralWidget()));
    ExpectInSight(form, mayScroll_);
    ExpectRoomForDigits(form);
  }

  const QFont font_ = QApplication::font();
  DailyBalances daily_;
  std::optional<ComputedDays> computed_;
  bool mayScroll_ = false;
};

TEST_F(FormLayout, EveryWindowCanBeReadAndUsedByKeyboardOnASmallScreen) {
  ExamineEveryWindow(10);
  ExamineDays();
}

TEST_F(FormLayout, EveryWindowCutsNothingInLargeLetters) {
  ExamineEveryWindow(14);
  ExamineDays();
}

TEST_F(FormLayout, MainWindowsStandWhereAPersonPutTheOneBeforeAndOthersAboveThem) {
  session.disclosure = {};
  windows.Show<MainMenu>();
  auto& menu = InFront<MainMenu>();
  menu.setGeometry(70, 60, 640, 480);
  const QRect place = menu.geometry();
  Click("cmdAcctAdv");
  EXPECT_EQ(InFront<DisclosureSetupWindow>().geometry(), place);
  Choose("optICDays");
  Choose("optRegNoDisc");
  Expect({"Please enter a valid compounding interval."});
  Type("txtDailyCompounding", "-1");
  Click("cmdNext");
  Type("txtDailyCompounding", "1");
  Click("cmdNext");
  EXPECT_EQ(InFront<DisclosureEntryWindow>().geometry(), place);
  Click("cmdBack");
  EXPECT_EQ(InFront<DisclosureSetupWindow>().geometry(), place);
  WhenShown<AboutWindow>([this, place] {
    const QPoint apart = Front()->geometry().center() - place.center();
    EXPECT_LE(apart.manhattanLength(), kFrame.height());
    Click("cmdOK");
  });
  Menu("mnuHelpAbout");
  InFront<DisclosureSetupWindow>().showMaximized();
  Click("cmdNext");
  EXPECT_TRUE(InFront<DisclosureEntryWindow>().isMaximized());
  EXPECT_EQ(Front()->normalGeometry(), place);
}

}  // namespace
}  // namespace corvane
