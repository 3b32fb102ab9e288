#pragma once

#include <functional>
#include <optional>

#include <QString>

class QWidget;

namespace corvane {

/// Asks which file to open; nothing when the person cancels. The filter is as of QFileDialog.
std::optional<QString> AskOpenPath(QWidget* parent, const QString& title, const QString& filter);

/// Lets a test answer in place of the dialog; an empty function puts the dialog back.
using OpenAnswer = std::function<std::optional<QString>()>;
void SetOpenAnswer(OpenAnswer answer);

}  // namespace corvane
