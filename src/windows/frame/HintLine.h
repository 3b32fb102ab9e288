#pragma once

#include "windows/frame/TextLine.h"

namespace corvane {

/// The line at the foot of every window: what to do next and, above that for a while, what has just
/// happened, such as the text of a refusal whose box was closed or the name of a saved file.
class HintLine : public TextLine {
  Q_OBJECT

 public:
  explicit HintLine(QWidget* parent);

  /// What to do next, as long as nothing has happened that hides it.
  void SetNextStep(const QString& text);
  /// What has happened. It stays until the person acts again.
  void Tell(const QString& text);
  /// The person acts again: what happened before is over.
  void Forget() { Tell({}); }

 private:
  void ShowLine();

  QString nextStep_;
  QString told_;
};

/// What to do next in a window where it does not depend on the check, by the window's name; empty
/// for windows that tell it themselves.
QString NextStepOf(const QString& window);

}  // namespace corvane
