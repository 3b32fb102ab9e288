#include <QAccessible>

#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/help/HelpWindow.h"
#include "windows/start/AboutWindow.h"
#include "windows/start/DisclaimerWindow.h"
#include "windows/start/MainMenu.h"

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

void ExpectReadingOrder(QWidget& form) {
  const std::vector<QWidget*> order = TabOrder(form);
  EXPECT_FALSE(order.empty()) << NameOf(&form);
  for (std::size_t i = 1; i < order.size(); ++i) {
    const QRect before(order[i - 1]->mapTo(&form, QPoint()), order[i - 1]->size());
    const QRect now(order[i]->mapTo(&form, QPoint()), order[i]->size());
    const bool sameRow = now.top() <= before.center().y() && before.top() <= now.center().y();
    EXPECT_TRUE(sameRow ? now.left() > before.left() : now.top() > before.top())
        << NameOf(order[i - 1]) << " is followed by " << NameOf(order[i]);
  }
}

void ExpectNamedControls(QWidget& form) {
  std::set<const QWidget*> labelled;
  for (const auto* label : form.findChildren<QLabel*>()) labelled.insert(label->buddy());
  for (auto* control : TabOrder(form)) {
    const bool isField = qobject_cast<QLineEdit*>(control);
    EXPECT_TRUE(!isField || labelled.contains(control))
        << NameOf(control) << " is no label's buddy";
    const bool needsName = isField || qobject_cast<QAbstractButton*>(control);
    auto* reader = QAccessible::queryAccessibleInterface(control);
    EXPECT_FALSE(needsName && reader->text(QAccessible::Name).isEmpty()) << NameOf(control);
  }
}

class FormLayout : public WindowTest {
 protected:
  template <class AForm>
  void Examine() {
    AForm& form = windows.Get<AForm>();
    form.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    ExpectReadingOrder(form);
    ExpectNamedControls(form);
    const QSize least = form.minimumSizeHint();
    EXPECT_TRUE(least.width() <= 1000 && least.height() <= 720)
        << NameOf(&form) << " needs " << least.width() << " x " << least.height();
  }
};

TEST_F(FormLayout, EveryWindowCanBeReadAndUsedByKeyboardOnASmallScreen) {
  session.disclosure.setup.kind = AccountKind::Stepped;
  session.disclosure.setup.withdrawal = Unit::Months;
  Examine<DisclaimerWindow>();
  Examine<MainMenu>();
  Examine<AboutWindow>();
  Examine<HelpWindow>();
  Examine<DisclosureSetupWindow>();
  Examine<DisclosureEntryWindow>();
  Examine<DisclosureResultsWindow>();
  Examine<CalendarPopup>();
}

}  // namespace
}  // namespace corvane
