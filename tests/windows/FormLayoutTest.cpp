#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/help/HelpWindow.h"
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

void ExpectReadingOrder(QWidget& form) {
  std::vector<QWidget*> order = TabOrder(form);
  EXPECT_FALSE(order.empty());
  const auto isHigher = [&form](const QWidget* one, const QWidget* other) {
    return PlaceIn(form, *one).top() < PlaceIn(form, *other).top();
  };
  std::rotate(order.begin(), std::min_element(order.begin(), order.end(), isHigher), order.end());
  for (std::size_t i = 1; i < order.size(); ++i) {
    const QRect before = PlaceIn(form, *order[i - 1]), now = PlaceIn(form, *order[i]);
    const bool sameRow = now.top() <= before.center().y() && before.top() <= now.center().y();
    // A group may be read column by column.
    const bool nextColumn =
        now.left() > before.right() && order[i]->parent() == order[i - 1]->parent();
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

class FormLayout : public WindowTest {
 protected:
  template <class... AForm>
  void Examine() {
    (Examine(windows.Get<AForm>()), ...);
  }

 private:
  static void Examine(Form& form) {
    SCOPED_TRACE(NameOf(&form));
    form.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    ExpectReadingOrder(form);
    ExpectReadable(*QAccessible::queryAccessibleInterface(form.centralWidget()));
    const QSize least = form.minimumSizeHint();
    EXPECT_TRUE(least.width() <= 1000 && least.height() <= 720)
        << "needs " << least.width() << " x " << least.height();
  }
};

TEST_F(FormLayout, EveryWindowCanBeReadAndUsedByKeyboardOnASmallScreen) {
  session.disclosure.setup.kind = AccountKind::Stepped;
  session.disclosure.setup.withdrawal = Unit::Months;
  DailyBalances daily;
  daily.account.kind = AccountKind::Stepped;
  daily.days.resize(kDaysPerPage);
  std::optional<ComputedDays> computed;
  windows.Get<DailyBalancesWindow>().Edit(daily, computed);
  windows.Get<TierTableWindow>().findChild<QComboBox*>("cboTotalTiers")->setCurrentIndex(8);
  Examine<DisclaimerWindow, MainMenu, AboutWindow, HelpWindow, CalendarPopup, TierTableWindow,
          DisclosureSetupWindow, DisclosureEntryWindow, DisclosureResultsWindow,
          StatementSetupWindow, StatementEntryWindow, StatementResultsWindow, DailyBalancesWindow,
          InterestReportWindow>();
}

}  // namespace
}  // namespace corvane
