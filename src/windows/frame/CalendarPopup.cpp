#include "windows/frame/CalendarPopup.h"

#include <map>

#include <QtWidgets>

#include "platform/WorkArea.h"
#include "support/CalendarMonth.h"
#include "support/Clock.h"
#include "ui_CalendarPopup.h"
#include "windows/frame/MonthAccess.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 7;
constexpr int kColumns = 7;
constexpr int kRows = 6;
constexpr int kMonthsOfYear = 12;

/// The pointer; the window's button that has the focus when the pointer is elsewhere, as on a press
/// of a key. The window itself may not have the focus back yet after a calendar before.
QPoint PlaceOfCall(const QWidget* window) {
  const QPoint pointer = QCursor::pos();
  const auto* button = window ? qobject_cast<QAbstractButton*>(window->focusWidget()) : nullptr;
  if (!button) return pointer;
  const QRect place(button->mapToGlobal(QPoint()), button->size());
  return place.contains(pointer) ? pointer : place.center();
}

/// What the frame of a window needs to show its title whole, between an icon and three buttons.
int WidthOfTitle(const QWidget& window) {
  constexpr int kIconAndButtons = 5;
  return window.fontMetrics().horizontalAdvance(window.windowTitle()) +
         kIconAndButtons * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

}  // namespace

CalendarPopup::CalendarPopup(WindowRegistry& registry)
    : Form(registry, Role::Secondary),
      ui_(std::make_unique<Ui::CalendarPopup>()),
      current_(Today()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  for (QObject* part :
       {static_cast<QObject*>(ui_->picMonth), static_cast<QObject*>(ui_->lblPrev),
        static_cast<QObject*>(ui_->lblNext), static_cast<QObject*>(ui_->LabelPrevYear),
        static_cast<QObject*>(ui_->LabelNextYear)}) {
    part->installEventFilter(this);
  }
  const QSize cell = fontMetrics().size(Qt::TextSingleLine, "0000") * 1.1;
  ui_->picMonth->setMinimumSize(cell.width() * kColumns + 1, cell.height() * kRows + 1);
  for (auto* label : {ui_->lblPrev, ui_->lblNext, ui_->LabelPrevYear, ui_->LabelNextYear}) {
    label->setAccessibleName(label->toolTip());
  }
  MoveTo(current_);
  BindHelp(kHelpContext);
}

CalendarPopup::~CalendarPopup() = default;

std::optional<Date> CalendarPopup::PickDate(const Date& from, const QString& caption) {
  dateChosen_ = false;
  if (!caption.isEmpty()) setWindowTitle(caption);
  MoveTo(from);
  resize(sizeHint().expandedTo({WidthOfTitle(*this), 0}));
  PlaceBeside(*this, PlaceOfCall(windows().MainWindow()));
  ui_->picMonth->setFocus();
  // Read when the window closes: it may be gone when the call below returns.
  std::optional<Date> picked;
  connect(this, &Form::Unloaded, [this, &picked] {
    if (dateChosen_) picked = current_;
  });
  windows().RunModal(*this);
  return picked;
}

void CalendarPopup::MoveTo(const Date& date) {
  const bool known =
      date.ok() && static_cast<int>(date.year()) >= 1901 && static_cast<int>(date.year()) <= 9999;
  if (!known) return;
  current_ = date;
  const QDate shown(static_cast<int>(date.year()),
                    static_cast<int>(static_cast<unsigned>(date.month())), 1);
  ui_->lblMonth->setText(QLocale::c().toString(shown, "MMMM yyyy"));
  ui_->picMonth->setAccessibleName(QString::fromStdString(FormatDate(date)));
  ui_->picMonth->update();
  TellOfCurrentDay(*ui_->picMonth, date.day());
}

QRectF CalendarPopup::CellRect(const Date& date) const {
  const DayCell cell = CellOf(date);
  const int width = (ui_->picMonth->width() - 1) / kColumns;
  const int height = (ui_->picMonth->height() - 1) / kRows;
  return QRectF(cell.column * width, cell.row * height, width, height);
}

void CalendarPopup::PaintMonth() {
  QPainter painter(ui_->picMonth);
  painter.fillRect(ui_->picMonth->rect(), palette().button());
  const Date today = Today();
  for (int number = 1; number <= DaysOfMonth(current_); ++number) {
    painter.setPen(palette().color(QPalette::ButtonText));
    const Date date{current_.year(), current_.month(),
                    std::chrono::day{static_cast<unsigned>(number)}};
    QFont font = ui_->picMonth->font();
    font.setBold(date == today);
    painter.setFont(font);
    if (dateChosen_ && date == current_) PaintChosen(painter);
    painter.drawText(CellRect(date), Qt::AlignCenter, QString::number(number));
  }
  PaintHighlight(painter);
}

void CalendarPopup::PaintChosen(QPainter& painter) const {
  painter.fillRect(CellRect(current_), palette().highlight());
  painter.setPen(palette().color(QPalette::HighlightedText));
}

void CalendarPopup::PaintHighlight(QPainter& painter) const {
  const QRectF cell = CellRect(current_);
  painter.setPen(palette().color(QPalette::Dark));
  painter.drawLine(cell.topLeft(), cell.topRight());
  painter.drawLine(cell.topLeft(), cell.bottomLeft());
  painter.setPen(palette().color(QPalette::Light));
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  painter.drawLine(cell.topRight(), cell.bottomRight());
}

void CalendarPopup::PressDay(const QPointF& place) {
  const int width = (ui_->picMonth->width() - 1) / kColumns;
  const int height = (ui_->picMonth->height() - 1) / kRows;
  const DayCell cell{static_cast<int>(place.x()) / width, static_cast<int>(place.y()) / height};
  if (const auto date = DayInCell(current_, cell)) MoveTo(*date);
}

bool CalendarPopup::picMonth_KeyDown(const QKeyEvent& press) {
  const int months = press.modifiers().testFlag(Qt::ControlModifier) ? kMonthsOfYear : 1;
  switch (press.key()) {
    case Qt::Key_Right:
      MoveTo(AddDays(current_, 1));
      return true;
    case Qt::Key_Left:
      MoveTo(AddDays(current_, -1));
      return true;
    case Qt::Key_Down:
      MoveTo(AddDays(current_, kColumns));
      return true;
    case Qt::Key_Up:
      MoveTo(AddDays(current_, -kColumns));
      return true;
    case Qt::Key_PageDown:
      MoveTo(AddMonths(current_, months));
      return true;
    case Qt::Key_PageUp:
      MoveTo(AddMonths(current_, -months));
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      dateChosen_ = true;
      ui_->picMonth->update();
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
  MoveTo(AddMonths(current_, step->second));
  return true;
}

void CalendarPopup::Choose() {
  dateChosen_ = true;
  Close();
}

void CalendarPopup::Close() {
  windows().Close(*this);
}

bool CalendarPopup::eventFilter(QObject* watched, QEvent* event) {
  const bool onMonth = watched == ui_->picMonth;
  switch (event->type()) {
    case QEvent::Paint:
      if (!onMonth) break;
      PaintMonth();
      return true;
    case QEvent::KeyPress:
      if (onMonth && picMonth_KeyDown(*static_cast<QKeyEvent*>(event))) return true;
      break;
    case QEvent::MouseButtonPress:
      if (const auto* mouse = static_cast<QMouseEvent*>(event); onMonth) {
        PressDay(mouse->position());
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
