#include "Person.h"

#include <QtTest>

#include "platform/MessageBox.h"
#include "platform/OpenDialog.h"
#include "platform/SaveDialog.h"
#include "support/Paths.h"
#include "support/WholeFile.h"

namespace corvane {

namespace {

template <class Things>
auto Pick(const Things& things, std::uint32_t chance) {
  return things[static_cast<decltype(things.size())>(chance %
                                                     static_cast<std::size_t>(things.size()))];
}

/// What a field of this name may sensibly hold.
QString SensibleText(const QString& field, std::uint32_t chance) {
  static const std::pair<const char*, QStringList> kTexts[] = {
      {"Date", {"01-01-2024", "01-31-2024", "02-29-2024", "12-31-2023", "01-01-2025", "1/5/2024"}},
      {"Month", {"1", "02", "12"}},
      {"Year", {"2023", "2024"}},
      {"Factor", {"1/365", "1/360", "1/366", "1/36"}},
      {"DRFactor", {"1/365", "1/366"}},
      {"TierPerNum", {"2", "3"}},
      {"Term", {"365", "12", "1", "182", "0", "730", "31"}},
      {"Compounding", {"1", "7", "30", "182"}},
      {"Wdrwl", {"1", "12", "4", "365"}},
      {"days", {"31", "1", "0", "66", "67", "96", "34"}},
      {"Days", {"31", "0", "96"}},
      {"APY", {"5.39", "5.44", "0.01"}},
      {"Apy", {"5.39", "1.51"}},
      {"Rate", {"5.25", "5", "0.1", "12.3456"}},
      {"bne", {"1000", "2500.00", "15000", "100000"}},
      {"Min", {"0", "500", "0.00"}},
      {"Bal", {"1000", "100000.00", "2500", "-20", "0", "999999.99"}},
      {"Int", {"2.55", "", "0.00"}},
  };
  for (const auto& [part, texts] : kTexts) {
    if (field.contains(part)) return Pick(texts, chance);
  }
  return Pick(QStringList{"First Bank", "Savings & <b>more</b>", "7", "Ann \"B\"", "é€ 中"},
              chance);
}

QString AnyText(std::uint32_t chance) {
  static const QStringList texts =
      QString(
          "| |-|.|--5|1.2.3|abc|0|-0|00000|1e308|99999999999999999999|0.0000001|1,234.56|"
          "1.234,56|$1,234.56|5.25%|1/0|1/|13-45-2024|2024-02-30|<script>alert(1)</script>|"
          "^instname^|\\0|１２|\u202e12|1\t2\t3|\t\n|NaN|inf")
          .split('|') +
      QStringList{QString(3000, '9'), QString(500, '^')};
  return Pick(texts, chance);
}

QString AnyPaste(std::uint32_t chance) {
  static const QStringList texts = {"1000\n2000\n3000\n",
                                    "1,000.00\t5.25\n2,000.00\t5.25\n",
                                    "Balance\n5\n6\n",
                                    QString("100\n").repeated(96),
                                    QString("100\n").repeated(200),
                                    "\n\n\n",
                                    "12\r\n",
                                    "2026-01-05",
                                    "01/05/2024"};
  return chance % 2 ? AnyText(chance / 2) : Pick(texts, chance / 2);
}

/// The visible, usable controls of a kind.
template <class Control>
QList<Control*> Usable(const QWidget* window) {
  QList<Control*> controls = window->findChildren<Control*>();
  controls.removeIf([](const Control* one) { return !one->isVisible() || !one->isEnabled(); });
  return controls;
}

/// An OK, a violation, a refusal, and a statement that lacks its days.
constexpr const char* kAccounts =
    "account,check,disclosed_apy,balance,rate,term,start_date,end_date,method,minimum_adb,"
    "minimum_daily\n"
    "A,disclosure,5.39,1000,5.25,365,,,,,\n"
    "B,disclosure,5.45,1000,5.25,365,,,,,\n"
    "C,disclosure,x,1000,5.25,365,,,,,\n"
    "D,statement,3.00,,3,,2024-01-01,2024-01-03,adb,0,0\n";

QString OwnFile() {
  return QDir::homePath() + "/accounts.csv";
}

bool GoesOn(const QPushButton* button) {
  static const QStringList names = {"cmdContinue", "cmdCalculate", "cmdNext", "cmdCompute"};
  return std::any_of(names.begin(), names.end(), [button](const QString& name) {
    return button->objectName().startsWith(name, Qt::CaseInsensitive);
  });
}

QPoint PlaceIn(const QWidget* control, std::uint32_t chance) {
  if (chance % 4) return control->rect().center();
  return {static_cast<int>(chance / 4) % qMax(1, control->width()),
          static_cast<int>(chance / 64) % qMax(1, control->height())};
}

}  // namespace

bool PutAwayDialog() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (!dialog || qobject_cast<QMessageBox*>(dialog)) return false;
  dialog->reject();
  return true;
}

Person::Person() {
  SetMessageBoxObserver([this](QMessageBox& box) { AnswerBox(box); });
  SetSaveAnswer([this](const SaveQuestion& question) -> std::optional<QString> {
    if (answers_ % 3 == 0) return std::nullopt;
    checks_ = question.folder + "/saved.csv";
    return question.folder + (answers_ % 3 == 1 ? "/saved" : "/no such folder/saved.html");
  });
  WriteWholeFile(PathOf(OwnFile().toStdString()), kAccounts);
  SetOpenAnswer([this]() -> std::optional<QString> {
    if (answers_ % 3 == 0) return std::nullopt;
    return AnyFile(answers_ / 3);
  });
}

Person::~Person() {
  SetMessageBoxObserver({});
  SetSaveAnswer({});
  SetOpenAnswer({});
}

QString Person::AnyFile(std::uint32_t chance) const {
  return Pick(QStringList{OwnFile(), OwnFile(), checks_, "/etc/hostname", QDir::tempPath()},
              chance);
}

void Person::AnswerBox(QMessageBox& box) const {
  if (answers_ % 5 == 0) return QTest::keyClick(&box, Qt::Key_Escape);
  const auto buttons = box.buttons();
  if (answers_ % 5 == 1) return QTest::keyClick(&box, Qt::Key_Return);
  QTest::mouseClick(Pick(buttons, answers_ / 5), Qt::LeftButton);
}

Form* Person::Front(std::uint32_t chance) const {
  if (QWidget* modal = QApplication::activeModalWidget()) return qobject_cast<Form*>(modal);
  QList<Form*> forms;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<Form*>(window);
    if (!form || !form->isVisible()) continue;
    // The main window more often than the help beside it.
    const bool isMain = form->WindowRole() == Form::Role::Main;
    for (int times = isMain ? 7 : 1; times > 0; --times) forms += form;
  }
  return forms.empty() ? nullptr : Pick(forms, chance);
}

void Person::TypeInto(QLineEdit* field, const QString& text) {
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) QTest::keyClick(field, Qt::Key_Delete);
  // A long text is as good by its beginning: the fields take each character alone.
  for (const QChar letter : text.left(40))
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, letter, {});
}

void Person::FillWindow(const Act& act) {
  const QPointer<Form> front = front_;
  std::uint32_t chance = act.what;
  // The tier window and the days have dozens of fields, a long look at which gives nothing new.
  int left = 24;
  for (QLineEdit* field : Usable<QLineEdit>(front)) {
    if (!front || !front->isVisible() || left-- == 0) return;
    if (!field->isVisible() || !field->isEnabled() || field->isReadOnly()) continue;
    chance = chance * 1664525 + 1013904223;
    // Now and then a field is left as it is.
    if (chance >> 28) TypeInto(field, SensibleText(field->objectName(), chance >> 8));
  }
  auto buttons = Usable<QPushButton>(front);
  buttons.removeIf([](const QPushButton* button) { return !GoesOn(button); });
  if (!buttons.empty()) QTest::mouseClick(Pick(buttons, act.where), Qt::LeftButton);
}

void Person::Press(QWidget* receiver, int key, Qt::KeyboardModifiers modifiers) {
  // Any of these may close the window.
  const QPointer<QWindow> window = receiver->window()->windowHandle();
  const QString text = key < 128 ? QString(QChar(key)).toLower() : QString();
  const bool alt = modifiers & Qt::AltModifier;
  const auto send = [&window](bool press, int code, Qt::KeyboardModifiers with, const QString& as) {
    if (window) QTest::simulateEvent(window, press, code, with, as, false, -1);
  };
  if (alt) send(true, Qt::Key_Alt, modifiers, {});
  send(true, key, modifiers, text);
  send(false, key, modifiers, text);
  if (alt) send(false, Qt::Key_Alt, {}, {});
}

void Person::PressAnyKey(const Act& act) {
  static const QStringList keys =
      QString(
          "Tab Shift+Backtab Return Num+Enter Esc Space Up Down Left Right PgUp PgDown Ctrl+PgUp "
          "Home End F1 F10 Ctrl+D Ctrl+Shift+D Ctrl+Z Ctrl+V Ctrl+S Ctrl+N Ctrl++ Ctrl+- Del "
          "Backspace")
          .split(' ');
  const auto press = QKeySequence::fromString(Pick(keys, act.what))[0];
  Press(front_, press.key(), press.keyboardModifiers());
}

void Person::OpenMenu(const Act& act) {
  QList<QAction*> items;
  for (QAction* item : front_->findChildren<QAction*>()) {
    if (item->isEnabled() && !item->menu() && !item->isSeparator() && !item->text().isEmpty()) {
      items += item;
    }
  }
  if (!items.empty()) Pick(items, act.where)->trigger();
}

void Person::DropFile(const Act& act) {
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(AnyFile(act.what))});
  files.setText(AnyPaste(act.what / 2));
  QWidget* over = front_->childAt(front_->rect().center());
  if (!over) over = front_;
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
  QCoreApplication::sendEvent(over, &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, {});
  if (enter.isAccepted()) QCoreApplication::sendEvent(over, &drop);
}

void Person::Type(const Act& act) {
  const auto fields = Usable<QLineEdit>(front_);
  if (fields.empty()) return;
  QLineEdit* field = Pick(fields, act.where);
  const bool sensible = act.deed == Deed::TypeSensible;
  TypeInto(field, sensible ? SensibleText(field->objectName(), act.what) : AnyText(act.what));
}

void Person::Paste(const Act& act) {
  const auto fields = Usable<QLineEdit>(front_);
  if (fields.empty()) return;
  QGuiApplication::clipboard()->setText(AnyPaste(act.what));
  QLineEdit* field = Pick(fields, act.where);
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
}

void Person::Click(const Act& act) {
  const auto buttons = Usable<QPushButton>(front_);
  const auto all = Usable<QWidget>(front_);
  QWidget* control = front_;
  if (!all.empty()) control = Pick(all, act.where);
  if (act.what % 3 && !buttons.empty()) control = Pick(buttons, act.where);
  const QPoint place = PlaceIn(control, act.what / 3);
  if (act.deed == Deed::DoubleClick) return QTest::mouseDClick(control, Qt::LeftButton, {}, place);
  QTest::mouseClick(control, Qt::LeftButton, {}, place);
}

void Person::Choose(const Act& act) {
  const auto options = Usable<QRadioButton>(front_);
  if (options.empty()) return;
  QRadioButton* option = Pick(options, act.where);
  QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
}

void Person::PickFromList(const Act& act) {
  const auto lists = Usable<QComboBox>(front_);
  if (lists.empty()) return;
  QTest::keyClick(Pick(lists, act.where), static_cast<Qt::Key>(Qt::Key_2 + act.what % 8));
}

void Person::PressAccessKeys(const Act& act) {
  Press(front_, Qt::Key_A + static_cast<int>(act.where % 26), Qt::AltModifier);
  if (Form* now = Front(act.where)) {
    Press(now, Qt::Key_A + static_cast<int>(act.what % 26), Qt::AltModifier);
  }
}

void Person::Resize(const Act& act) {
  front_->resize(200 + static_cast<int>(act.where % 1200), 100 + static_cast<int>(act.what % 900));
}

void Person::CloseFrame(const Act&) {
  front_->close();
}

void Person::Wait(const Act& act) {
  QTest::qWait(static_cast<int>(act.what % 60));
}

void Person::Do(const Act& act) {
  static const std::map<Deed, void (Person::*)(const Act&)> kWays = {
      {Deed::FillWindow, &Person::FillWindow},
      {Deed::TypeSensible, &Person::Type},
      {Deed::TypeAnything, &Person::Type},
      {Deed::Paste, &Person::Paste},
      {Deed::Click, &Person::Click},
      {Deed::DoubleClick, &Person::Click},
      {Deed::Choose, &Person::Choose},
      {Deed::PickFromList, &Person::PickFromList},
      {Deed::Menu, &Person::OpenMenu},
      {Deed::AccessKeys, &Person::PressAccessKeys},
      {Deed::Key, &Person::PressAnyKey},
      {Deed::Resize, &Person::Resize},
      {Deed::Drop, &Person::DropFile},
      {Deed::CloseFrame, &Person::CloseFrame},
      {Deed::Wait, &Person::Wait}};
  answers_ = act.what;
  front_ = Front(act.where);
  if (!front_) return;
  if (!front_->isActiveWindow()) front_->activateWindow();
  (this->*kWays.at(act.deed))(act);
}

}  // namespace corvane
