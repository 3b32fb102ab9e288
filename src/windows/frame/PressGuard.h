#pragma once

#include <QObject>
#include <QPoint>

class QInputEvent;

namespace corvane {

/// Keeps a press that changed the window in front, if only by a message box, from acting in the
/// next one too, so that no message goes by unread: the second press of a double click, which would
/// meet whatever comes to stand under the pointer, a key pressed twice, and a key held down. Such
/// presses do nothing as long as each follows the last one within the double-click interval, the
/// mouse at the same place; an access key only while it is held.
class PressGuard : public QObject {
 public:
  PressGuard();

  /// Another window came to the front, or the one in front closed.
  void WindowChanged() { changed_ = true; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// What was pressed or released last, where on the screen (of the mouse), and when.
  struct Input {
    int what = 0;
    QPoint place;
    quint64 milliseconds = 0;
  };
  static Input InputOf(const QInputEvent& event);
  bool GoesOn(const QInputEvent& press);

  Input last_;
  bool changed_ = false;  ///< by a press that still goes on
};

}  // namespace corvane
