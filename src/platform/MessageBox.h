#pragma once

#include <functional>

#include <QMessageBox>

namespace corvane {

/// Shows a modal message box with an OK button and returns when it was answered. The text is
/// shown as it stands; nothing in it is taken for markup.
void ShowMessage(QWidget* parent, const QString& text, const QString& title,
                 QMessageBox::Icon icon);

/// Asks with the buttons Yes and No; true for Yes. Enter gives the answer that is the default.
bool AskYesNo(QWidget* parent, const QString& text, const QString& title,
              QMessageBox::StandardButton byDefault = QMessageBox::Yes);

/// Is told of every message box as soon as it is on the screen; a test answers it there, or fails
/// because it did not expect one.
using MessageBoxObserver = std::function<void(QMessageBox&)>;
void SetMessageBoxObserver(MessageBoxObserver observer);

}  // namespace corvane
