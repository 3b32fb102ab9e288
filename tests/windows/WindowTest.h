#pragma once

#include <deque>
#include <functional>

#include <gtest/gtest.h>
#include <QtTest>
#include <QtWidgets>

#include "windows/frame/WindowRegistry.h"

namespace corvane {

/// A message box that a test expects: exactly this text, title and icon, answered with a button.
struct ExpectedBox {
  std::string text;
  std::string title = kKeyEntryError;
  MessageIcon icon = MessageIcon::Exclamation;
  QMessageBox::StandardButton answer = QMessageBox::Ok;
};

/// Drives the program's windows as a person does: real key presses and mouse clicks on the
/// controls, found by name in the window in front. A message box that no test expected fails the
/// test, and so does an expected one that never came.
class WindowTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// The boxes that the following acts will raise, in order.
  void Expect(ExpectedBox box) { boxes.push_back(std::move(box)); }

  /// Makes the form the one that the following acts are done in, waiting until it is in front.
  template <class AForm>
  AForm& InFront() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsVisible<AForm>(); })) << "window is not shown";
    AForm& form = windows.Get<AForm>();
    StandIn(form);
    return form;
  }
  void StandIn(Form& form) {
    front_ = &form;
    Activate();
  }
  Form* Front() const { return front_; }

  template <class AForm>
  bool IsVisible() const {
    const AForm* form = windows.Find<AForm>();
    return form && form->isVisible();
  }

  template <class Control>
  Control* Get(const QString& name) const {
    auto* control = front_->findChild<Control*>(name);
    if (!control) ADD_FAILURE() << "no control " << name.toStdString();
    return control;
  }

  /// Clicks into the field, selects what it holds and types the text over it, or deletes it;
  /// from a list it picks by typing.
  void Type(const QString& field, const QString& text);
  /// Types into the control that has the focus.
  void Keys(const QString& text);
  /// Presses a key in the menu that is open, else in the control that has the focus.
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Clicks a control at a place in percent of its size.
  void Click(const QString& control, QPoint place = {50, 50});
  void DoubleClick(const QString& control, QPoint place);
  void Choose(const QString& option);
  /// Opens the menu that has the item with the mouse and clicks the item.
  void Menu(const QString& item);
  /// What to do in a modal window that the next act opens: the act comes back when it has closed.
  template <class AForm>
  void WhenShown(std::function<void()> doThere) {
    QTimer::singleShot(0, qApp, [this, doThere] {
      InFront<AForm>();
      doThere();
    });
  }
  /// Closes the window in front by its frame.
  void CloseByFrame() { front_->close(); }

  std::string Caption(const QString& label) const;
  bool IsEnabled(const QString& control) const { return Get<QWidget>(control)->isEnabled(); }
  /// Name of the control that has the focus.
  std::string Focus() const;

  Session session;
  WindowRegistry windows{session};
  std::deque<ExpectedBox> boxes;  ///< that are expected and have not come

 private:
  void Answer(QMessageBox& box);
  /// Without a window manager nobody else brings the window in front back once a message box or
  /// another window above it has closed.
  void Activate() const;

  QPointer<Form> front_;
};

}  // namespace corvane
