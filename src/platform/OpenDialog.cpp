#include "platform/OpenDialog.h"

#include <QFileDialog>

namespace corvane {

namespace {

OpenAnswer& Answer() {
  static OpenAnswer answer;
  return answer;
}

}  // namespace

std::optional<QString> AskOpenPath(QWidget* parent, const QString& title, const QString& filter) {
  if (Answer()) return Answer()();
  const QString path = QFileDialog::getOpenFileName(parent, title, {}, filter);
  return path.isEmpty() ? std::nullopt : std::optional(path);
}

void SetOpenAnswer(OpenAnswer answer) {
  Answer() = std::move(answer);
}

}  // namespace corvane
