#include "windows/frame/FormKeys.h"

#include <QtWidgets>

namespace corvane {

namespace {

bool CanBePressed(const QAbstractButton* button) {
  return button->isVisible() && button->isEnabled();
}

std::vector<QRadioButton*> GroupOf(const QRadioButton& option) {
  const auto group =
      option.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  return {group.begin(), group.end()};
}

/// Whether Tab enters the group of an option there. Where none is chosen, it is the first one.
bool IsEntry(const QRadioButton& option) {
  const auto group = GroupOf(option);
  const auto isChosen = [](const auto* one) { return one->isChecked() && CanBePressed(one); };
  if (std::any_of(group.begin(), group.end(), isChosen)) return option.isChecked();
  const auto hasFocus = [](const auto* one) { return one->hasFocus(); };
  return option.hasFocus() || std::none_of(group.begin(), group.end(), hasFocus);
}

}  // namespace

EnterButton::EnterButton(QWidget& window) : window_(window) {
  connect(qApp, &QApplication::focusChanged, this, [this] { Draw(); });
}

void EnterButton::Choose(const std::vector<QPushButton*>& buttons) {
  buttons_ = buttons;
  for (QPushButton* button : buttons_) button->installEventFilter(this);
}

QAbstractButton* EnterButton::Current() const {
  auto* focused = qobject_cast<QAbstractButton*>(window_.focusWidget());
  if (focused && !focused->isCheckable() && CanBePressed(focused)) return focused;
  const auto first = std::find_if(buttons_.begin(), buttons_.end(), CanBePressed);
  return first == buttons_.end() ? nullptr : *first;
}

bool EnterButton::Press() {
  QAbstractButton* button = Current();
  if (button) button->click();
  return button;
}

void EnterButton::Draw() {
  const QAbstractButton* current = Current();
  for (QPushButton* button : buttons_) button->setDefault(button == current);
}

bool EnterButton::eventFilter(QObject*, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::EnabledChange || type == QEvent::Show || type == QEvent::Hide) Draw();
  return false;
}

void AccessKeys::Watch() {
  for (auto* button : window_.findChildren<QAbstractButton*>()) button->installEventFilter(this);
  if (auto* bar = window_.findChild<QMenuBar*>()) bar->installEventFilter(this);
}

bool AccessKeys::Press(const QKeySequence& accessKey) {
  for (auto* button : window_.findChildren<QAbstractButton*>()) {
    if (button->shortcut() != accessKey || !CanBePressed(button)) continue;
    if (button->isCheckable()) button->setFocus(Qt::ShortcutFocusReason);
    button->click();
    return true;
  }
  return false;
}

bool AccessKeys::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::Shortcut && Press(static_cast<QShortcutEvent*>(event)->key());
}

bool IsEnter(const QKeyEvent& press) {
  return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

void LetF10OpenMenus(QMainWindow& window) {
  auto* bar = window.findChild<QMenuBar*>();
  if (!bar) return;
  QObject::connect(new QShortcut(Qt::Key_F10, &window), &QShortcut::activated, bar,
                   [bar] { bar->setActiveAction(bar->actions().front()); });
}

void LetEscapeClose(QWidget& window) {
  auto* escape = new QShortcut(Qt::Key_Escape, &window);
  escape->setAutoRepeat(false);
  QObject::connect(escape, &QShortcut::activated, &window, &QWidget::close);
}

void LetTabEnterAtChosenOptions(const QWidget& window) {
  for (auto* option : window.findChildren<QRadioButton*>()) {
    option->setFocusPolicy(IsEntry(*option) ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

}  // namespace corvane
