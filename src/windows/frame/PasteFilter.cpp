#include "windows/frame/PasteFilter.h"

#include <QtWidgets>

namespace corvane {

PasteFilter::PasteFilter(QLineEdit* field, Taker take)
    : QObject(field), field_(field), take_(std::move(take)) {
  field->installEventFilter(this);
}

void PasteFilter::TakeClipboard(QClipboard::Mode mode) {
  take_(QGuiApplication::clipboard()->text(mode));
}

bool PasteFilter::TakeKey(const QKeyEvent& press) {
  if (!press.matches(QKeySequence::Paste)) return false;
  const bool selection = press.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  TakeClipboard(selection ? QClipboard::Selection : QClipboard::Clipboard);
  return true;
}

bool PasteFilter::TakeAt(const QPoint& place, const QString& text) {
  field_->setCursorPosition(field_->cursorPositionAt(place));
  take_(text);
  return true;
}

void PasteFilter::ShowMenu(const QContextMenuEvent& event) {
  QMenu* menu = field_->createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  // Its items have no other names than what they read.
  for (QAction* item : menu->actions()) {
    if (!item->text().startsWith("&Paste")) continue;
    item->disconnect(field_);
    connect(item, &QAction::triggered, this, [this] { TakeClipboard(QClipboard::Clipboard); });
  }
  menu->popup(event.globalPos());
}

bool PasteFilter::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return TakeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::ContextMenu:
      ShowMenu(*static_cast<QContextMenuEvent*>(event));
      return true;
    case QEvent::MouseButtonRelease: {
      const auto& release = *static_cast<QMouseEvent*>(event);
      const QClipboard* clipboard = QGuiApplication::clipboard();
      if (release.button() != Qt::MiddleButton || !clipboard->supportsSelection()) return false;
      return TakeAt(release.position().toPoint(), clipboard->text(QClipboard::Selection));
    }
    case QEvent::Drop: {
      auto& drop = *static_cast<QDropEvent*>(event);
      if (drop.source() == watched) return false;  // only changes places
      drop.acceptProposedAction();
      return TakeAt(drop.position().toPoint(), drop.mimeData()->text());
    }
    default:
      return false;
  }
}

}  // namespace corvane
