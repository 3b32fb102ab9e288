#pragma once

#include <vector>

#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QKeySequence;
class QMainWindow;
class QPushButton;
class QWidget;

namespace corvane {

/// The button of a window that Enter presses, drawn as such: the button that has the focus, else
/// the first of the window's own that can be pressed.
class EnterButton : public QObject {
 public:
  explicit EnterButton(QWidget& window);

  /// The window's own, in order of preference; they are not all open at the same time.
  void Choose(const std::vector<QPushButton*>& buttons);
  /// False where there is none.
  bool Press();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAbstractButton* Current() const;
  void Draw();

  QWidget& window_;
  std::vector<QPushButton*> buttons_;
};

/// Lets an access key act at once, on the control that is captioned with it before a menu that is.
class AccessKeys : public QObject {
 public:
  explicit AccessKeys(QWidget& window) : window_(window) {}

  /// To be called once the window has its controls.
  void Watch();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(const QKeySequence& accessKey);

  QWidget& window_;
};

bool IsEnter(const QKeyEvent& press);

/// Lets F10 open the first menu, where the window has one.
void LetF10OpenMenus(QMainWindow& window);

/// Lets Escape close the window as its frame does.
void LetEscapeClose(QWidget& window);

/// Lets the Tab key enter each group of options at the one that is chosen. Left alone, it enters at
/// the first one, or at the one that was chosen when the group was left.
void LetTabEnterAtChosenOptions(const QWidget& window);

}  // namespace corvane
