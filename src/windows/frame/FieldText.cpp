#include "windows/frame/FieldText.h"

#include <QtWidgets>

namespace corvane {

std::string TextOf(const QLineEdit* field) {
  return field->displayText().toStdString();
}

void SetText(QLineEdit* field, const std::string& text) {
  field->setText(QString::fromStdString(text));
}

}  // namespace corvane
