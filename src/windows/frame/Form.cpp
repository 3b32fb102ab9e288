#include "windows/frame/Form.h"

#include <QtWidgets>

#include "account/NumericEntry.h"
#include "platform/MessageBox.h"
#include "support/NumberText.h"
#include "windows/frame/ContextLine.h"
#include "windows/frame/DateKeys.h"
#include "windows/frame/HintLine.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/PasteFilter.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

/// Disabled fields show figures that have to be read, and disabled options what is chosen: their
/// text is fainter, not all but gone. The window's own colour behind it tells such a field from one
/// that takes an entry, in a dark palette too.
QPalette ReadableWhenDisabled(QPalette palette) {
  constexpr std::pair<QPalette::ColorRole, float> kFainter[] = {
      {QPalette::Text, 0.65F}, {QPalette::WindowText, 0.45F}, {QPalette::ButtonText, 0.45F}};
  for (const auto& [role, opacity] : kFainter) {
    QColor text = palette.color(QPalette::Active, role);
    text.setAlphaF(opacity);
    palette.setColor(QPalette::Disabled, role, text);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base,
                   palette.color(QPalette::Active, QPalette::Window));
  return palette;
}

bool IsEnter(const QKeyEvent& press) {
  return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

bool TypesCharacter(const QKeyEvent& press) {
  return !press.text().isEmpty() && press.text().front().isPrint();
}

TypedInto PlaceIn(const QLineEdit* field) {
  const bool selected = field->hasSelectedText();
  return {field->text().toStdU16String(),
          selected ? field->selectionStart() : field->cursorPosition(),
          static_cast<int>(field->selectedText().size())};
}

/// The most characters of a field, by its rule.
int LengthOf(const NumericRule& rule) {
  if (rule.decimals < 0) return FieldLength::kCount;
  const std::string_view kind = rule.kind;
  return kind == "bal" || kind == "userint" ? FieldLength::kMoney : FieldLength::kRate;
}

}  // namespace

Form::Form(WindowRegistry& windows, Role role)
    : windows_(windows), role_(role), hint_(*new HintLine(this)) {
  setPalette(ReadableWhenDisabled(palette()));
  statusBar()->addWidget(&hint_, 1);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    const bool isControl = now && now->window() == this && !qobject_cast<QMenuBar*>(now);
    if (isControl) MoveFocus(now);
  });
}

Session& Form::session() {
  return windows_.session();
}

Routes& Form::routes() {
  return windows_.routes();
}

void Form::Load() {
  hint_.SetNextStep(NextStepOf(objectName()));
  LetBodyScroll(*this);
  for (auto* button : findChildren<QAbstractButton*>()) button->installEventFilter(this);
  for (auto* field : findChildren<QLineEdit*>()) field->installEventFilter(this);
  BindKeys();
  captions_.emplace(*this);
  Form_Load();
  captions_->Name();
  LayOutPage(*this);
}

void Form::BindKeys() {
  if (auto* bar = findChild<QMenuBar*>()) {
    bar->installEventFilter(this);
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, bar,
            [bar] { bar->setActiveAction(bar->actions().front()); });
  }
  if (role_ == Role::Main) return;
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setAutoRepeat(false);
  connect(escape, &QShortcut::activated, this, [this] { close(); });
}

void Form::keyPressEvent(QKeyEvent* event) {
  // A key held down would press again in the window that opens, or whatever was refused.
  if (IsEnter(*event) && (event->isAutoRepeat() || enter_.Press())) return;
  QMainWindow::keyPressEvent(event);
}

bool Form::focusNextPrevChild(bool next) {
  LetTabEnterAtChosenOptions(*this);
  return QMainWindow::focusNextPrevChild(next);
}

void Form::Tell(const Refusal& refusal) {
  const bool warns = refusal.icon == MessageIcon::Exclamation;
  ShowMessage(this, QString::fromStdString(refusal.text), QString::fromStdString(refusal.title),
              warns ? QMessageBox::Warning : QMessageBox::NoIcon);
  ShowHint(refusal.text);
  // An empty name would find a control without one.
  if (refusal.field.empty()) return;
  if (auto* field = findChild<QWidget*>(QString::fromStdString(refusal.field))) FocusField(field);
}

void Form::ShowHint(const std::string& text) {
  hint_.Tell(QString::fromStdString(text));
}

void Form::ShowNextStep(const std::string& text) {
  hint_.SetNextStep(QString::fromStdString(text));
}

ContextLine* Form::AddContextLine(const char* name) {
  auto* line = new ContextLine(this, name);
  qobject_cast<QBoxLayout*>(centralWidget()->layout())->insertWidget(contextLines_++, line);
  return line;
}

void Form::FocusField(QWidget* field) {
  field->setFocus();
  MoveFocus(field);
  if (auto* edit = qobject_cast<QLineEdit*>(field)) edit->selectAll();
}

void Form::OnClick(QAbstractButton* button, Handler handler) {
  if (auto* push = qobject_cast<QPushButton*>(button)) push->setAutoDefault(true);
  // The focus moves when the button acts, below: moved by the press, a message that the field left
  // behind shows would come between press and release.
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QAbstractButton::clicked, this, [this, button, handler] {
    if (windows_.IsInFront(*this) && TakeFocus(button)) handler();
  });
}

void Form::OnMenu(QAction* item, Handler handler) {
  connect(item, &QAction::triggered, this, [this, item, handler] {
    if (windows_.IsInFront(*this) && CommitFor(item)) handler();
  });
}

void Form::OnGotFocus(QWidget* field, Handler handler) {
  gotFocus_[field] = std::move(handler);
}

void Form::OnLostFocus(QWidget* field, LostFocusHandler handler) {
  lostFocus_[field].push_back(std::move(handler));
}

void Form::BindNumeric(QLineEdit* field, const NumericRule& rule) {
  numeric_[field] = rule;
  FitToDigits(*field, LengthOf(rule));
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // What an input method composes would not pass the key filter.
  field->setAttribute(Qt::WA_InputMethodEnabled, false);
  connect(field, &QLineEdit::textChanged, this,
          [this, field, rule] { NumericChange(field, rule); });
  new PasteFilter(field, [this, field](const QString& text) { PasteInto(field, text); });
}

void Form::BindDate(QLineEdit* field) {
  new DateKeys(field, [this](const std::string& refusal) { ShowHint(refusal); });
}

void Form::AskOnLeaving(QLineEdit* field, std::function<std::optional<std::string>()> notice) {
  OnLostFocus(field, [this, notice, asked = std::optional<std::string>()](const QString&) mutable {
    const auto last = std::exchange(asked, notice());
    if (asked && asked != last) ShowHint(*asked);
  });
}

void Form::SelectTextOnFocus(QLineEdit* field, int characters) {
  const auto select = [field, characters] { field->setSelection(0, characters); };
  OnGotFocus(field, [field, select] {
    select();
    // A press of the mouse places the cursor after the focus has come, which would unselect.
    if (QApplication::mouseButtons() != Qt::NoButton) QTimer::singleShot(0, field, select);
  });
}

void Form::RewriteOnLeaving(QLineEdit* field) {
  OnLostFocus(field, [field](const QString&) { SetText(field, RewriteFixed2(TextOf(field))); });
}

void Form::BindText(QLineEdit* field, std::string& text) {
  connect(field, &QLineEdit::textChanged, this, [field, &text] { text = TextOf(field); });
}

void Form::NameArrayElements() {
  static const QRegularExpression element("^(.+)_(\\d+)_$");
  for (auto* widget : findChildren<QWidget*>(element)) {
    const auto match = element.match(widget->objectName());
    widget->setObjectName(match.captured(1) + "(" + match.captured(2) + ")");
  }
}

void Form::NumericChange(QLineEdit* field, const NumericRule& rule) {
  const std::u16string typed = field->text().toStdU16String();
  const std::u16string repaired = rule.repairMinus ? FixMinusSign(typed) : typed;
  const LimitedText limited = rule.decimals < 0 ? LimitedText{repaired, {}}
                                                : LimitDecimals(repaired, rule.decimals, rule.kind);
  if (limited.text != typed) field->setText(QString::fromStdU16String(limited.text));
  if (limited.message) Tell(*limited.message);
}

void Form::PasteInto(QLineEdit* field, const QString& text) {
  const NumericRule& rule = numeric_.at(field);
  const auto number = PastedNumber(PlaceIn(field), text.toStdString(), rule.kind);
  const bool hasSigns = number && number->find_first_of("-.") != number->npos;
  if (!number || (rule.digitsOnly && hasSigns)) return ShowHint(kNumberNotPasted);
  field->insert(QString::fromStdString(*number));
}

bool Form::PressControl(const QKeySequence& accessKey) {
  for (auto* button : findChildren<QAbstractButton*>()) {
    if (button->shortcut() != accessKey || !button->isVisible() || !button->isEnabled()) continue;
    if (button->isCheckable()) button->setFocus(Qt::ShortcutFocusReason);
    button->click();
    return true;
  }
  return false;
}

bool Form::RefusesNumericKey(QLineEdit* field, const QKeyEvent& press, const NumericRule& rule) {
  if (IsEnter(press)) {
    if (rule.enterMovesOn && !press.isAutoRepeat()) focusNextPrevChild(true);
    return rule.enterMovesOn;
  }
  if (!TypesCharacter(press)) return false;
  const QString text = press.text();
  if (rule.digitsOnly) return text < "0" || text > "9";
  return !FilterNumericKey(text.toUcs4().front(), PlaceIn(field));
}

bool Form::RefusesKey(QLineEdit* field, const QKeyEvent& press) {
  const bool alt = press.modifiers() & (Qt::AltModifier | Qt::MetaModifier);
  const bool control = press.modifiers() & Qt::ControlModifier;
  // A command types nothing, which a field knows of Ctrl alone. Both together are AltGr.
  if (alt != control) return alt && TypesCharacter(press);
  const auto rule = numeric_.find(field);
  return rule != numeric_.end() && RefusesNumericKey(field, press, rule->second);
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Shortcut) {
    return PressControl(static_cast<QShortcutEvent*>(event)->key());
  }
  auto* field = qobject_cast<QLineEdit*>(watched);
  if (field && event->type() == QEvent::KeyPress) {
    return RefusesKey(field, *static_cast<QKeyEvent*>(event));
  }
  return QMainWindow::eventFilter(watched, event);
}

void Form::HoldFocus(QWidget* field) {
  focusHeld_ = true;
  FocusField(field);
}

void Form::MoveFocus(QWidget* now) {
  if (now == focused_) return;
  if (captions_) captions_->Name();
  const QPointer<QWidget> left = focused_;
  focused_ = now;
  if (left) RaiseLostFocus(left, now->objectName());
  const auto got = gotFocus_.find(now);
  if (focused_ == now && got != gotFocus_.end()) got->second();
}

void Form::RaiseLostFocus(QWidget* field, const QString& next) {
  const auto handlers = lostFocus_.find(field);
  if (handlers == lostFocus_.end()) return;
  for (const auto& handler : handlers->second) handler(next);
}

bool Form::TakeFocus(QAbstractButton* button) {
  focusHeld_ = false;
  hint_.Forget();
  button->setFocus();
  // A field that holds on to the focus has said why already.
  if (!focusHeld_) MoveFocus(button);
  return !focusHeld_;
}

bool Form::CommitFor(QAction* item) {
  focusHeld_ = false;
  hint_.Forget();
  if (focused_) RaiseLostFocus(focused_, item->objectName());
  return !focusHeld_;
}

void Form::ShowHelpTopic(int context) {
  if (const auto refusal = routes().ShowHelp(context)) Tell(*refusal);
}

void Form::BindHelp(int context) {
  // Help changes nothing in the form, so that the field which has the focus is not left for it.
  const auto show = [this, context] { ShowHelpTopic(context); };
  auto* item = findChild<QAction*>("mnuHelpTopics");
  if (!item) addAction(item = new QAction(this));
  item->setShortcut(QKeySequence::HelpContents);
  connect(item, &QAction::triggered, this, show);
}

void Form::BindCommonMenus(int helpContext) {
  for (auto* item : findChildren<QAction*>()) {
    if (item->objectName() == "mnuExit") OnMenu(item, [this] { windows_.EndProgram(); });
    if (item->objectName() == "mnuHelpAbout") OnMenu(item, [this] { routes().ShowAbout(); });
  }
  BindHelp(helpContext);
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (Form_QueryUnload()) windows_.CloseByFrame(*this);
}

void ClearOption(QRadioButton* option) {
  option->setAutoExclusive(false);
  option->setChecked(false);
  option->setAutoExclusive(true);
}

std::string TextOf(const QLineEdit* field) {
  return field->displayText().toStdString();
}

void SetText(QLineEdit* field, const std::string& text) {
  field->setText(QString::fromStdString(text));
}

}  // namespace corvane
