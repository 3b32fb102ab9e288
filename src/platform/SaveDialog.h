#pragma once

#include <functional>
#include <optional>

#include <QString>

class QWidget;

namespace corvane {

/// What a save dialog starts from. An empty title leaves the dialog's own.
struct SaveQuestion {
  QString title;
  QString folder;
  QString fileName;
  QString filter;
  bool adds = false;  ///< to a file that exists, which is not replaced then
};

/// Asks under which path to save; nothing when the person cancels. The dialog asks before it gives
/// back the path of a file that exists, unless something is added to it.
std::optional<QString> AskSavePath(QWidget* parent, const SaveQuestion& question);

/// Lets a test answer in place of the dialog; an empty function puts the dialog back.
using SaveAnswer = std::function<std::optional<QString>(const SaveQuestion&)>;
void SetSaveAnswer(SaveAnswer answer);

}  // namespace corvane
