#include "windows/frame/PressGuard.h"

#include <QtWidgets>

namespace corvane {

namespace {

bool IsRepeat(const QInputEvent& press) {
  const auto* key = dynamic_cast<const QKeyEvent*>(&press);
  return key && key->isAutoRepeat();
}

/// The most milliseconds between two presses that are taken for one.
quint64 LongestPause(const QInputEvent& press) {
  // The window system repeats a held key without a pause, and does not always say that it does.
  if (press.modifiers() & Qt::AltModifier) return 0;
  return static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

/// The filter sees every event of the program. What the browser makes for itself cannot be asked
/// what it is, so that it is looked for.
bool IsWindow(const QObject* receiver) {
  const QWindowList windows = QGuiApplication::allWindows();
  return std::any_of(windows.begin(), windows.end(),
                     [receiver](const QWindow* window) { return window == receiver; });
}

}  // namespace

PressGuard::PressGuard() {
  qApp->installEventFilter(this);
}

PressGuard::Input PressGuard::InputOf(const QInputEvent& event) {
  if (const auto* key = dynamic_cast<const QKeyEvent*>(&event)) {
    return {key->key(), {}, key->timestamp()};
  }
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  return {-static_cast<int>(mouse.button()), mouse.globalPosition().toPoint(), mouse.timestamp()};
}

bool PressGuard::GoesOn(const QInputEvent& press) {
  const Input now = InputOf(press);
  const bool followsLast = now.what == last_.what &&
                           now.milliseconds - last_.milliseconds <= LongestPause(press) &&
                           (now.place - last_.place).manhattanLength() <=
                               QGuiApplication::styleHints()->mouseDoubleClickDistance();
  changed_ = changed_ && (followsLast || IsRepeat(press));
  last_ = now;
  return changed_;
}

bool PressGuard::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:  // comes before an access key acts
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      // A press comes to a window of the window system first, and from there to the controls.
      if (!IsWindow(watched) || !GoesOn(*static_cast<QInputEvent*>(event))) return false;
      event->accept();
      return true;
    case QEvent::WindowBlocked:  // a message or dialog came in front
    case QEvent::WindowUnblocked:
      WindowChanged();
      return false;
    case QEvent::KeyRelease:
    case QEvent::MouseButtonRelease:
      if (IsWindow(watched)) last_ = InputOf(*static_cast<QInputEvent*>(event));
      return false;
    default:
      return false;
  }
}

}  // namespace corvane
