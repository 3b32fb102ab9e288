#include "windows/frame/MonthAccess.h"

#include <array>

#include <QtWidgets>

#include "support/CalendarMonth.h"
#include "windows/frame/MonthView.h"

namespace corvane {

namespace {

constexpr std::size_t kMostDays = 31;

class DayAccess : public QAccessibleInterface {
 public:
  /// `index` is that of the day in its month, from 0.
  DayAccess(MonthView& month, int index) : month_(month), index_(index) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&month_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  void setText(QAccessible::Text, const QString&) override {}

  QString text(QAccessible::Text part) const override {
    if (part != QAccessible::Name) return {};
    const Date date = Day();
    const QDate day(static_cast<int>(date.year()),
                    static_cast<int>(static_cast<unsigned>(date.month())), index_ + 1);
    return QLocale::c().toString(day, "dddd, MMMM d, yyyy");
  }

  QRect rect() const override {
    const QRect cell = month_.CellRect(Day()).toRect();
    return {month_.mapToGlobal(cell.topLeft()), cell.size()};
  }

  QAccessible::State state() const override {
    const bool isCurrent = Day() == month_.Current();
    QAccessible::State state;
    state.focusable = state.selectable = true;
    state.selected = isCurrent;
    state.focused = isCurrent && month_.hasFocus();
    return state;
  }

 private:
  Date Day() const {
    const Date current = month_.Current();
    return {current.year(), current.month(), std::chrono::day{static_cast<unsigned>(index_ + 1)}};
  }

  MonthView& month_;
  int index_;
};

class MonthAccess : public QAccessibleWidget {
 public:
  explicit MonthAccess(MonthView* month) : QAccessibleWidget(month, QAccessible::List) {
    int index = 0;
    for (auto& day : days_) {
      day = QAccessible::registerAccessibleInterface(new DayAccess(*month, index++));
    }
  }
  ~MonthAccess() override {
    for (const auto day : days_) QAccessible::deleteAccessibleInterface(day);
  }

  int childCount() const override { return DaysOfMonth(Current()); }
  QAccessibleInterface* child(int index) const override {
    const bool exists = index >= 0 && index < childCount();
    return exists ? QAccessible::accessibleInterface(days_.at(static_cast<std::size_t>(index)))
                  : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* day) const override {
    const auto found = std::find(days_.begin(), days_.end(),
                                 QAccessible::uniqueId(const_cast<QAccessibleInterface*>(day)));
    return found == days_.end() ? -1 : static_cast<int>(found - days_.begin());
  }
  QAccessibleInterface* focusChild() const override {
    const auto day = static_cast<unsigned>(Current().day());
    return widget()->hasFocus() ? child(static_cast<int>(day) - 1) : nullptr;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int index = 0; index < childCount(); ++index) {
      if (child(index)->rect().contains(x, y)) return child(index);
    }
    return nullptr;
  }

 private:
  Date Current() const { return static_cast<const MonthView&>(*widget()).Current(); }

  std::array<QAccessible::Id, kMostDays> days_{};
};

QAccessibleInterface* MakeMonth(const QString&, QObject* object) {
  auto* month = qobject_cast<MonthView*>(object);
  return month ? new MonthAccess(month) : nullptr;
}

}  // namespace

void MakeMonthsAccessible() {
  QAccessible::installFactory(MakeMonth);
}

void TellOfCurrentDay(QWidget& month, std::chrono::day day) {
  if (!month.hasFocus()) return;
  QAccessibleEvent event(&month, QAccessible::Focus);
  event.setChild(static_cast<int>(static_cast<unsigned>(day)) - 1);
  QAccessible::updateAccessibility(&event);
}

}  // namespace corvane
