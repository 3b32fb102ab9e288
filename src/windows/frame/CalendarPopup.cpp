#include "windows/frame/CalendarPopup.h"

#include <map>

#include <QtWidgets>

#include "platform/WorkArea.h"
#include "support/Clock.h"
#include "ui_CalendarPopup.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 7;
constexpr int kDaysOfWeek = 7;
constexpr int kMonthsOfYear = 12;

/// The pointer; the window's button that has the focus when the pointer is elsewhere, as on a press
/// of a key. The window itself may not have the focus back yet after a calendar before.
QRect SpotOfCall(const QWidget* window) {
  constexpr QSize kPointer(2, 20);
  const QPoint pointer = QCursor::pos();
  const auto* button = window ? qobject_cast<QAbstractButton*>(window->focusWidget()) : nullptr;
  if (!button) return {pointer, kPointer};
  const QRect place(button->mapToGlobal(QPoint()), button->size());
  return place.contains(pointer) ? QRect(pointer, kPointer) : place;
}

/// What the frame of a window needs to show its title whole, between an icon and three buttons.
int WidthOfTitle(const QWidget& window) {
  constexpr int kIconAndButtons = 5;
  return window.fontMetrics().horizontalAdvance(window.windowTitle()) +
         kIconAndButtons * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

}  // namespace

CalendarPopup::CalendarPopup(WindowRegistry& registry)
    : Form(registry, Role::Secondary), ui_(std::make_unique<Ui::CalendarPopup>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  for (QObject* part :
       {static_cast<QObject*>(ui_->picMonth), static_cast<QObject*>(ui_->lblPrev),
        static_cast<QObject*>(ui_->lblNext), static_cast<QObject*>(ui_->LabelPrevYear),
        static_cast<QObject*>(ui_->LabelNextYear)}) {
    part->installEventFilter(this);
  }
  for (auto* label : {ui_->lblPrev, ui_->lblNext, ui_->LabelPrevYear, ui_->LabelNextYear}) {
    label->setAccessibleName(label->toolTip());
  }
  MoveTo(Today());
  BindHelp(kHelpContext);
}

CalendarPopup::~CalendarPopup() = default;

std::optional<Date> CalendarPopup::PickDate(const Date& from, const QString& caption) {
  SetChosen(false);
  if (!caption.isEmpty()) setWindowTitle(caption);
  MoveTo(from);
  resize(sizeHint().expandedTo({WidthOfTitle(*this), 0}));
  PlaceBeside(*this, SpotOfCall(windows().MainWindow()));
  ui_->picMonth->setFocus();
  // Read when the window closes: it may be gone when the call below returns.
  std::optional<Date> picked;
  connect(this, &Form::Unloaded, [this, &picked] {
    if (dateChosen_) picked = ui_->picMonth->Current();
  });
  windows().RunModal(*this);
  return picked;
}

void CalendarPopup::MoveTo(const Date& date) {
  const bool known =
      date.ok() && static_cast<int>(date.year()) >= 1901 && static_cast<int>(date.year()) <= 9999;
  if (!known) return;
  const QDate shown(static_cast<int>(date.year()),
                    static_cast<int>(static_cast<unsigned>(date.month())), 1);
  ui_->lblMonth->setText(QLocale::c().toString(shown, "MMMM yyyy"));
  ui_->picMonth->ShowDay(date);
}

void CalendarPopup::SetChosen(bool isChosen) {
  dateChosen_ = isChosen;
  ui_->picMonth->SetChosen(isChosen);
}

bool CalendarPopup::picMonth_KeyDown(const QKeyEvent& press) {
  const int months = press.modifiers().testFlag(Qt::ControlModifier) ? kMonthsOfYear : 1;
  const Date current = ui_->picMonth->Current();
  switch (press.key()) {
    case Qt::Key_Right:
      MoveTo(AddDays(current, 1));
      return true;
    case Qt::Key_Left:
      MoveTo(AddDays(current, -1));
      return true;
    case Qt::Key_Down:
      MoveTo(AddDays(current, kDaysOfWeek));
      return true;
    case Qt::Key_Up:
      MoveTo(AddDays(current, -kDaysOfWeek));
      return true;
    case Qt::Key_PageDown:
      MoveTo(AddMonths(current, months));
      return true;
    case Qt::Key_PageUp:
      MoveTo(AddMonths(current, -months));
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      SetChosen(true);
      return true;
    default:
      return false;
  }
}

bool CalendarPopup::LabelPressed(QObject* label) {
  const std::map<QObject*, int> months = {{ui_->lblNext, 1},
                                          {ui_->lblPrev, -1},
                                          {ui_->LabelNextYear, kMonthsOfYear},
                                          {ui_->LabelPrevYear, -kMonthsOfYear}};
  const auto step = months.find(label);
  if (step == months.end()) return false;
  MoveTo(AddMonths(ui_->picMonth->Current(), step->second));
  return true;
}

void CalendarPopup::Choose() {
  SetChosen(true);
  Close();
}

void CalendarPopup::Close() {
  windows().Close(*this);
}

bool CalendarPopup::eventFilter(QObject* watched, QEvent* event) {
  const bool onMonth = watched == ui_->picMonth;
  switch (event->type()) {
    case QEvent::KeyPress:
      if (onMonth && picMonth_KeyDown(*static_cast<QKeyEvent*>(event))) return true;
      break;
    case QEvent::MouseButtonPress:
      if (const auto* mouse = static_cast<QMouseEvent*>(event); onMonth) {
        if (const auto day = ui_->picMonth->DayAt(mouse->position())) MoveTo(*day);
      } else if (mouse->button() == Qt::LeftButton) {
        LabelPressed(watched);
      }
      return true;
    case QEvent::MouseButtonDblClick:
      if (onMonth) {
        Choose();
      } else {
        LabelPressed(watched);
      }
      return true;
    default:
      break;
  }
  return Form::eventFilter(watched, event);
}

QString CalendarTitle(bool start) {
  return QString(start ? "Start Date" : "End Date") + " - Double click for Date";
}

}  // namespace corvane
