#pragma once

#include <functional>
#include <map>
#include <vector>

#include <QPointer>
#include <QWidget>

namespace corvane {

/// Which control of a form has the focus, as its handlers see it: a field loses it exactly once,
/// when it goes to another control of the form or when a button or menu item is about to act, and
/// never because a message box or another window came in front.
class FormFocus {
 public:
  using GotHandler = std::function<void()>;
  /// Takes the object name of the control or menu item that the focus goes to.
  using LostHandler = std::function<void(const QString& next)>;

  void OnGot(const QWidget* field, GotHandler handler) { got_[field] = std::move(handler); }
  void OnLost(const QWidget* field, LostHandler handler);

  /// The focus has come to a control of the form.
  void MoveTo(QWidget* now);
  /// Whether the field that has the focus lets it go to a button or menu item, which is about to
  /// act; runs its handlers. A button then has the focus.
  bool LeaveFor(QWidget* button);
  bool LeaveFor(const QAction* item);
  /// A field's handler refuses to let the focus go. What it shows has said why.
  void Hold() { held_ = true; }

 private:
  void RaiseLost(const QWidget* field, const QString& next) const;

  QPointer<QWidget> focused_;
  bool held_ = false;
  std::map<const QWidget*, GotHandler> got_;
  std::map<const QWidget*, std::vector<LostHandler>> lost_;
};

}  // namespace corvane
