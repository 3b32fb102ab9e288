#include "windows/WindowTest.h"

#include "platform/MessageBox.h"
#include "platform/OpenDialog.h"
#include "platform/SaveDialog.h"
#include "support/Clock.h"

namespace corvane {

namespace {

QPoint PlaceIn(const QWidget& control, QPoint percent) {
  return {control.width() * percent.x() / 100, control.height() * percent.y() / 100};
}

}  // namespace

void WindowTest::SetUp() {
  using namespace std::chrono;
  SetToday(year{2026} / March / 15);
  SetMessageBoxObserver([this](QMessageBox& box) { Answer(box); });
}

void WindowTest::TearDown() {
  for (const ExpectedBox& box : boxes) ADD_FAILURE() << "box never shown: " << box.text;
  SetMessageBoxObserver({});
  SetSaveAnswer({});
  SetOpenAnswer({});
  SetToday({});
}

void WindowTest::Answer(QMessageBox& box) {
  const std::string text = box.text().toStdString();
  if (boxes.empty()) {
    ADD_FAILURE() << "unexpected box: " << text;
    box.reject();
    return;
  }
  const ExpectedBox expected = boxes.front();
  boxes.pop_front();
  EXPECT_EQ(text, expected.text);
  EXPECT_EQ(box.windowTitle().toStdString(), expected.title) << text;
  const auto icon = expected.icon == MessageIcon::None ? QMessageBox::NoIcon : QMessageBox::Warning;
  EXPECT_EQ(box.icon(), icon) << text;
  auto* button = box.button(expected.answer);
  ASSERT_NE(button, nullptr) << text;
  QTest::mouseClick(button, Qt::LeftButton);
}

void WindowTest::Activate() const {
  if (!front_ || !front_->isVisible() || QApplication::activePopupWidget()) return;
  if (!front_->isActiveWindow()) front_->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(front_));
}

void WindowTest::Type(const QString& field, const QString& text) {
  if (auto* list = front_->findChild<QComboBox*>(field)) {
    list->setFocus();
    return QTest::keyClicks(list, text);
  }
  auto* edit = Get<QLineEdit>(field);
  if (!edit) return;
  Activate();
  ASSERT_TRUE(edit->isVisible() && edit->isEnabled()) << field.toStdString() << " takes no entry";
  QTest::mouseClick(edit, Qt::LeftButton);
  QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

void WindowTest::Keys(const QString& text) {
  Activate();
  for (const QChar& letter : text) {
    QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
  }
}

void WindowTest::Key(int key, Qt::KeyboardModifiers modifiers) {
  Activate();
  QWidget* receiver = QApplication::activePopupWidget();
  if (!receiver) receiver = QApplication::focusWidget();
  QTest::keyClick(receiver ? receiver : front_, static_cast<Qt::Key>(key), modifiers);
}

void WindowTest::Click(const QString& name, QPoint place) {
  auto* control = Get<QWidget>(name);
  if (!control) return;
  Activate();
  ASSERT_TRUE(control->isVisible() && control->isEnabled()) << name.toStdString();
  QTest::mouseClick(control, Qt::LeftButton, {}, PlaceIn(*control, place));
  QCoreApplication::processEvents();
}

void WindowTest::DoubleClick(const QString& name, QPoint place) {
  if (auto* control = Get<QWidget>(name)) {
    QTest::mouseDClick(control, Qt::LeftButton, {}, PlaceIn(*control, place));
  }
}

void WindowTest::Choose(const QString& option) {
  auto* control = Get<QRadioButton>(option);
  if (!control) return;
  ASSERT_TRUE(control->isVisible() && control->isEnabled()) << option.toStdString();
  QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
}

void WindowTest::Menu(const QString& item) {
  auto* action = front_->findChild<QAction*>(item);
  const auto menus = front_->findChildren<QMenu*>();
  const auto drop = std::ranges::find_if(
      menus, [action](const QMenu* menu) { return menu->actions().contains(action); });
  ASSERT_TRUE(action && drop != menus.end()) << "no item " << item.toStdString();
  QMenuBar* bar = front_->menuBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry((*drop)->menuAction()).center());
  ASSERT_TRUE(QTest::qWaitFor([drop] { return (*drop)->isVisible(); }));
  QTest::mouseClick(*drop, Qt::LeftButton, {}, (*drop)->actionGeometry(action).center());
  QCoreApplication::processEvents();
}

std::string WindowTest::Caption(const QString& label) const {
  const auto* control = Get<QLabel>(label);
  return control ? control->text().toStdString() : "";
}

std::string WindowTest::Focus() const {
  Activate();
  const QWidget* focus = QApplication::focusWidget();
  return focus ? focus->objectName().toStdString() : "";
}

}  // namespace corvane
