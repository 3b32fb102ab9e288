#include "windows/frame/Form.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "support/NumberText.h"
#include "windows/frame/Colours.h"
#include "windows/frame/ContextLine.h"
#include "windows/frame/HintLine.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/PasteFilter.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

Form::Form(WindowRegistry& windows, Role role)
    : windows_(windows), role_(role), hint_(*new HintLine(this)) {
  setPalette(ReadableWhenDisabled(palette()));
  statusBar()->addWidget(&hint_, 1);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    const bool isControl = now && now->window() == this && !qobject_cast<QMenuBar*>(now);
    if (isControl) focus_.MoveTo(now);
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
  accessKeys_.Watch();
  numeric_.WatchKeys();
  LetF10OpenMenus(*this);
  if (role_ == Role::Secondary) LetEscapeClose(*this);
  Form_Load();
  captions_.emplace(*this);
  LayOutPage(*this);
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
  if (windows_.HasEnded()) return;
  const bool warns = refusal.icon == MessageIcon::Exclamation;
  ShowMessage(this, QString::fromStdString(refusal.text), QString::fromStdString(refusal.title),
              warns ? QMessageBox::Warning : QMessageBox::NoIcon);
  ShowHint(refusal.text);
  // An empty name would find a control without one.
  if (refusal.field.empty()) return;
  auto* field = findChild<QWidget*>(QString::fromStdString(refusal.field));
  if (!field) return;
  FocusField(field);
  // Who types something else has read it.
  if (auto* edit = qobject_cast<QLineEdit*>(field)) {
    connect(edit, &QLineEdit::textChanged, &hint_, &HintLine::Forget, Qt::SingleShotConnection);
  }
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
  focus_.MoveTo(field);
  if (auto* edit = qobject_cast<QLineEdit*>(field)) edit->selectAll();
}

bool Form::BeginsToAct() {
  if (!windows_.IsInFront(*this)) return false;
  hint_.Forget();
  return true;
}

void Form::OnClick(QAbstractButton* button, Handler handler) {
  if (auto* push = qobject_cast<QPushButton*>(button)) push->setAutoDefault(true);
  // The focus moves when the button acts, below: moved by the press, a message that the field left
  // behind shows would come between press and release.
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QAbstractButton::clicked, this, [this, button, handler] {
    if (BeginsToAct() && focus_.LeaveFor(button)) handler();
  });
}

void Form::OnMenu(QAction* item, Handler handler) {
  connect(item, &QAction::triggered, this, [this, item, handler] {
    if (BeginsToAct() && focus_.LeaveFor(item)) handler();
  });
}

void Form::OnDrop(FileDrop::Handler handler) {
  new FileDrop(*this, [this, handler](const auto& files) {
    if (BeginsToAct()) handler(files);
  });
}

void Form::OnLostFocus(QWidget* field, FormFocus::LostHandler handler) {
  focus_.OnLost(field, std::move(handler));
}

void Form::BindNumeric(QLineEdit* field, const NumericRule& rule) {
  numeric_.Bind(field, rule);
  new PasteFilter(field, [this, field](const QString& text) { PasteInto(field, text); });
}

void Form::BindDecimals(std::span<const DecimalLimit> limits) {
  for (const auto& [control, decimals, kind] : limits) {
    BindNumeric(findChild<QLineEdit*>(control),
                {.repairMinus = true, .decimals = decimals, .kind = kind});
  }
}

void Form::PasteInto(QLineEdit* field, const QString& text) {
  numeric_.Paste(field, text);
}

void Form::AskOnLeaving(QLineEdit* field, std::function<std::optional<std::string>()> notice) {
  OnLostFocus(field, [this, notice, asked = std::optional<std::string>()](const QString&) mutable {
    const auto last = std::exchange(asked, notice());
    if (asked && asked != last) ShowHint(*asked);
  });
}

void Form::SelectTextOnFocus(QLineEdit* field, int characters) {
  const auto select = [field, characters] { field->setSelection(0, characters); };
  focus_.OnGot(field, [field, select] {
    select();
    // A press of the mouse places the cursor after the focus has come, which would unselect.
    if (QApplication::mouseButtons() != Qt::NoButton) QTimer::singleShot(0, field, select);
  });
}

void Form::RewriteOnLeaving(QLineEdit* field) {
  OnLostFocus(field, [field](const QString&) { SetText(field, RewriteFixed2(TextOf(field))); });
}

void Form::NameArrayElements() {
  static const QRegularExpression element("^(.+)_(\\d+)_$");
  for (auto* widget : findChildren<QWidget*>(element)) {
    const auto match = element.match(widget->objectName());
    widget->setObjectName(match.captured(1) + "(" + match.captured(2) + ")");
  }
}

void Form::HoldFocus(QWidget* field) {
  focus_.Hold();
  FocusField(field);
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
  if (!windows_.HasEnded() && Form_QueryUnload()) windows_.CloseByFrame(*this);
}

}  // namespace corvane
