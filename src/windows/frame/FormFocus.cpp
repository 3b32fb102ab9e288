#include "windows/frame/FormFocus.h"

#include <QAction>

namespace corvane {

void FormFocus::OnLost(const QWidget* field, LostHandler handler) {
  lost_[field].push_back(std::move(handler));
}

void FormFocus::MoveTo(QWidget* now) {
  if (now == focused_) return;
  const QPointer<QWidget> left = focused_;
  focused_ = now;
  if (left) RaiseLost(left, now->objectName());
  const auto got = got_.find(now);
  if (focused_ == now && got != got_.end()) got->second();
}

void FormFocus::RaiseLost(const QWidget* field, const QString& next) const {
  const auto handlers = lost_.find(field);
  if (handlers == lost_.end()) return;
  for (const auto& handler : handlers->second) handler(next);
}

bool FormFocus::LeaveFor(QWidget* button) {
  held_ = false;
  button->setFocus();
  if (!held_) MoveTo(button);
  return !held_;
}

bool FormFocus::LeaveFor(const QAction* item) {
  held_ = false;
  if (focused_) RaiseLost(focused_, item->objectName());
  return !held_;
}

}  // namespace corvane
