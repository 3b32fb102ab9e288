#include "platform/SaveDialog.h"

#include <QDir>
#include <QFileDialog>

namespace corvane {

namespace {

SaveAnswer& Answer() {
  static SaveAnswer answer;
  return answer;
}

}  // namespace

std::optional<QString> AskSavePath(QWidget* parent, const SaveQuestion& question) {
  if (Answer()) return Answer()(question);
  const QString proposed = QDir(question.folder).filePath(question.fileName);
  const QString path = QFileDialog::getSaveFileName(
      parent, question.title, proposed, question.filter, nullptr,
      question.adds ? QFileDialog::DontConfirmOverwrite : QFileDialog::Options());
  return path.isEmpty() ? std::nullopt : std::optional(path);
}

void SetSaveAnswer(SaveAnswer answer) {
  Answer() = std::move(answer);
}

}  // namespace corvane
