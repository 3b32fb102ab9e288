#include "windows/frame/WindowRegistry.h"

#include <algorithm>

#include <utility>

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QThread>

#include "platform/WorkArea.h"
#include "windows/frame/MonthAccess.h"
#include "windows/frame/PageLayout.h"

namespace corvane {

WindowRegistry::WindowRegistry(Session& session) : session_(session) {
  MakeCaptionsAccessible();
  MakeMonthsAccessible();
}

WindowRegistry::~WindowRegistry() {
  for (const Entry& entry : closed_) delete entry.form;
  while (!open_.empty()) {
    Form* form = open_.back().form;
    open_.pop_back();
    delete form;
  }
  // Forms that closed themselves must not outlive what their browsers need.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Form* WindowRegistry::FindForm(std::type_index type) const {
  for (const Entry& entry : open_) {
    if (entry.type == type) return entry.form;
  }
  return nullptr;
}

void WindowRegistry::Add(std::type_index type, Form* form) {
  open_.push_back({type, form, qMax(1, QThread::currentThread()->loopLevel())});
  form->Load();
}

const Form* WindowRegistry::MainWindow() const {
  const auto shown = std::find_if(open_.rbegin(), open_.rend(), [](const Entry& entry) {
    return entry.form->WindowRole() == Form::Role::Main && entry.form->isVisible();
  });
  return shown == open_.rend() ? nullptr : shown->form;
}

void WindowRegistry::PlaceBeforeShowing(Form& form) {
  if (form.PlacesItself()) return;
  const Form* main = MainWindow();
  const bool isPage = form.WindowRole() == Form::Role::Main;
  // The size and place that a person gave, and whether the window fills the screen.
  if (main && isPage) {
    form.restoreGeometry(main->saveGeometry());
    return;
  }
  const bool likePage = isPage || ShowsLongText(form);
  form.resize(likePage ? (main ? main->size() : PageSize(form)) : form.sizeHint());
  if (main) return PlaceOver(form, *main);
  CenterInWorkArea(form);
}

void WindowRegistry::BringToFront(Form& form) {
  if (ended_) return;
  DeleteClosed();
  if (!form.isVisible()) PlaceBeforeShowing(form);
  form.show();
  form.raise();
  form.activateWindow();
  presses_.WindowChanged();
  form.Form_Activate();
}

void WindowRegistry::RunModal(Form& form) {
  if (ended_) return;
  // A window that is on the screen already does not become modal.
  form.hide();
  form.setWindowModality(Qt::ApplicationModal);
  BringToFront(form);
  QEventLoop loop;
  QObject::connect(&form, &Form::Unloaded, &loop, &QEventLoop::quit);
  modal_.push_back(&form);
  loop.exec(QEventLoop::DialogExec);
  modal_.pop_back();
  DeleteClosed();
}

bool WindowRegistry::IsInFront(const Form& form) const {
  const QWidget* modal = QApplication::activeModalWidget();
  // A window that has closed is modal until the handler that opened it has what it came for.
  const bool isWaitedFor = !modal_.empty() && modal_.back() != &form;
  return form.isVisible() && (!modal || modal == &form) && !isWaitedFor;
}

void WindowRegistry::Close(Form& form) {
  if (ended_) return;
  const auto place = std::find_if(open_.begin(), open_.end(),
                                  [&form](const Entry& entry) { return entry.form == &form; });
  if (place == open_.end()) return;
  const Entry entry = *place;
  open_.erase(place);
  Unload(form);
  closed_.push_back(entry);
  DeleteClosed();
}

void WindowRegistry::DeleteClosed() {
  const int loop = QThread::currentThread()->loopLevel();
  std::erase_if(closed_, [loop](const Entry& entry) {
    // Later, as a handler of the form may be the one that closes it.
    if (loop <= entry.loop) entry.form->deleteLater();
    return loop <= entry.loop;
  });
}

void WindowRegistry::Unload(Form& form) {
  // A message that the window still shows goes with it: disabled as the window is, it would hold
  // all others and nobody could answer it.
  for (auto* message : form.findChildren<QDialog*>()) {
    if (message->isVisible()) message->reject();
  }
  form.hide();
  // Keys and clicks that were under way still reach it until it is deleted.
  form.setEnabled(false);
  presses_.WindowChanged();
  emit form.Unloaded();
}

void WindowRegistry::CloseOtherMainWindows(const Form& kept) {
  const auto open = open_;
  for (const Entry& entry : open) {
    const bool isMain = entry.form->WindowRole() == Form::Role::Main;
    if (!isMain || entry.form == &kept) continue;
    entry.form->StaysWhenLeft() ? entry.form->hide() : Close(*entry.form);
  }
}

void WindowRegistry::CloseByFrame(Form& form) {
  if (form.WindowRole() == Form::Role::Main) return EndProgram();
  Close(form);
}

void WindowRegistry::EndProgram() {
  if (ended_) return;
  session_.header = {};
  EndProcess();
  for (auto entry = open_.rbegin(); entry != open_.rend(); ++entry) Unload(*entry->form);
}

void WindowRegistry::EndProcess() {
  ended_ = true;
  // quit() would first close all windows as their frames do, and stop at one that only closes.
  // Where no event loop runs, none is left, and one that starts later must not end at once.
  if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit();
}

}  // namespace corvane
