#include "windows/frame/DateKeys.h"

#include <QtWidgets>

#include "account/DateEntry.h"
#include "windows/frame/FieldText.h"
#include "windows/frame/PasteFilter.h"

namespace corvane {

namespace {

/// Replaces the text so that it can be undone.
void Replace(QLineEdit* field, const std::string& text) {
  field->selectAll();
  field->insert(QString::fromStdString(text));
}

}  // namespace

DateKeys::DateKeys(QLineEdit* field, std::function<void(const std::string&)> refuse)
    : QObject(field), field_(field), refuse_(std::move(refuse)) {
  field->installEventFilter(this);
  new PasteFilter(field, [this](const QString& text) { Paste(text); });
}

void DateKeys::Paste(const QString& text) {
  const auto date = ReadPastedDate(text.toStdString());
  if (!date) return refuse_(kDateNotPasted);
  Replace(field_, FormatDate(*date));
}

void DateKeys::Complete() {
  if (field_->hasSelectedText()) return;  // a digit will replace it
  const std::string text = TextOf(field_);
  const MaskedDate completed = AfterSeparator({text, field_->cursorPosition()});
  if (completed.text != text) Replace(field_, completed.text);
  field_->setCursorPosition(completed.cursor);
}

bool DateKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (!IsDateSeparator(static_cast<QKeyEvent*>(event)->text().toStdString())) return false;
  Complete();
  return true;
}

}  // namespace corvane
