#pragma once

#include <functional>

#include <QtWidgets>

#include "Act.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

/// Does acts at whatever window is in front, by real key presses and clicks. Message boxes and
/// dialogs are answered as an act's number has it.
class Person {
 public:
  Person();
  ~Person();

  void Do(const Act& act);

  /// The window that takes acts: the modal one, else the help now and then, else the main window.
  Form* Front(std::uint32_t chance) const;

 private:
  void FillWindow(const Act& act);
  void Type(const Act& act);
  void Paste(const Act& act);
  void Click(const Act& act);
  void Choose(const Act& act);
  void PickFromList(const Act& act);
  void OpenMenu(const Act& act);
  void PressAccessKeys(const Act& act);
  void PressAnyKey(const Act& act);
  void Resize(const Act& act);
  void DropFile(const Act& act);
  void CloseFrame(const Act& act);
  void Wait(const Act& act);

  static void TypeInto(QLineEdit* field, const QString& text);
  static void Press(QWidget* receiver, int key, Qt::KeyboardModifiers modifiers);
  void AnswerBox(QMessageBox& box) const;

  QString AnyFile(std::uint32_t chance) const;

  Form* front_ = nullptr;
  QString checks_ = "/no such file.csv";  ///< what the person may have added checks to
  std::uint32_t answers_ = 0;
};

/// The dialogs of the desktop, such as the print dialog, are put away unanswered.
bool PutAwayDialog();

}  // namespace corvane
