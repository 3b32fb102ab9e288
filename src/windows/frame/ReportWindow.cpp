#include "windows/frame/ReportWindow.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "platform/ProgramFolder.h"
#include "platform/SaveDialog.h"
#include "platform/WebView.h"
#include "reports/DataFolder.h"
#include "reports/SaveName.h"
#include "support/Clock.h"
#include "support/Dates.h"
#include "support/Paths.h"
#include "support/WholeFile.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

// In percent of the size that the template gives.
constexpr int kZoomStep = 10;
constexpr int kLeastZoom = 50;
constexpr int kMostZoom = 300;

/// Two programs that show reports at once may cross each other a few times.
constexpr int kMostBuilds = 5;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Text(const std::filesystem::path& path) {
  return QString::fromStdString(PathText(path));
}

}  // namespace

ReportWindow::ReportWindow(WindowRegistry& windows, Role role, const ReportNames& names)
    : Form(windows, role), names_(names) {}

void ReportWindow::PlaceView(QWidget* frame, const QString& viewName) {
  view_ = new WebView(frame);
  view_->setObjectName(viewName);
  view_->setAccessibleName("Report");
  frame->layout()->addWidget(view_);
  // The browser is still inside what it tells of.
  connect(view_, &WebView::Shown, this, &ReportWindow::CheckShown, Qt::QueuedConnection);
  auto* print = findChild<QPushButton*>("cmdPrint");
  OnClick(print, [this] { Print(); });
  OnMenu(findChild<QAction*>("mnuPrint"), [print] { print->click(); });
  OnMenu(findChild<QAction*>("mnuSave"), [this] { SaveCopy(); });
  BindKeys();
  AddViewMenu();
  Zoom(session().reportZoom);
}

void ReportWindow::BindKeys() {
  const std::pair<const char*, QKeySequence::StandardKey> keys[] = {
      {"mnuSave", QKeySequence::Save},
      {"mnuPrint", QKeySequence::Print},
      {"mnuNewAccount", QKeySequence::New}};
  for (const auto& [name, key] : keys) {
    if (auto* item = findChild<QAction*>(name)) item->setShortcut(key);
  }
}

void ReportWindow::AddViewMenu() {
  auto* menu = new QMenu("&View", menuBar());
  menuBar()->insertMenu(findChild<QMenu*>("mnuHelp")->menuAction(), menu);
  const auto add = [this, menu](const char* name, const char* text, const auto& keys, auto zoom) {
    QAction* item = menu->addAction(text);
    item->setObjectName(name);
    item->setShortcuts(keys);
    connect(item, &QAction::triggered, this, [this, zoom] { Zoom(zoom(session().reportZoom)); });
  };
  using Keys = QList<QKeySequence>;
  add("mnuZoomIn", "Zoom &In", Keys{Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
      [](int now) { return now + kZoomStep; });
  add("mnuZoomOut", "Zoom &Out", Keys{Qt::CTRL | Qt::Key_Minus},
      [](int now) { return now - kZoomStep; });
  add("mnuZoomNone", "&Actual Size", Keys{Qt::CTRL | Qt::Key_0}, [](int) { return 100; });
}

void ReportWindow::Zoom(int percent) {
  int& zoom = session().reportZoom;
  zoom = std::clamp(percent, kLeastZoom, kMostZoom);
  view_->SetZoom(zoom);
}

std::filesystem::path ReportWindow::OutputFile() {
  return session().dataFolder / names_.outputName;
}

void ReportWindow::FocusReport() {
  if (text_) FocusField(view_);
}

void ReportWindow::BuildReport() {
  timesBuilt_ = 0;
  BuildAndShow();
}

WrittenReport ReportWindow::Written() {
  // The folder may have gone, or become possible, since the program started.
  const DataFolder folder = MakeDataFolder(DocumentsFolder());
  session().dataFolder = folder.path;
  if (!folder.reason.empty()) return {{}, {ReportNotWritten({OutputFile(), folder.reason})}};
  return WriteReport(ProgramFolder() / names_.templateName, OutputFile(), Content());
}

void ReportWindow::BuildAndShow() {
  ++timesBuilt_;
  WrittenReport report = Written();
  if (!report.text) view_->ShowNotice("No report was built.");
  for (const Refusal& message : report.messages) Tell(message);
  text_ = std::move(report.text);
  labels_ = {windowTitle(), QString::fromStdString(session().header.institution),
             QString::fromStdString(FormatDate(Today()))};
  if (text_) view_->ShowFile(Text(OutputFile()));
}

void ReportWindow::CheckShown(bool success) {
  if (!success || !text_ || !isVisible() || HoldsReport(OutputFile(), *text_)) return;
  if (timesBuilt_ < kMostBuilds) return BuildAndShow();
  view_->ShowNotice("Another program keeps changing the report: " + Text(OutputFile()));
}

void ReportWindow::Print() {
  if (!text_) return;
  const PrintResult result = view_->Print(labels_);
  if (result.outcome == PrintOutcome::Printed) ShowHint("Printed");
  if (result.outcome == PrintOutcome::Failed) {
    Tell({"The report could not be printed.\n" + result.reason.toStdString(), "", "Error!",
          MessageIcon::None});
  }
}

bool ReportWindow::MayReplace(const std::filesystem::path& chosen,
                              const std::filesystem::path& path) {
  if (!MustAskBeforeReplacing(chosen, path)) return true;
  return AskYesNo(this, Text(path.filename()) + " already exists.\nDo you want to replace it?",
                  "Save As");
}

void ReportWindow::SaveCopy() {
  if (!text_) return;
  const auto chosen = AskSavePath(this, {Text(names_.saveTitle), Text(session().dataFolder),
                                         Text(names_.saveName), "HTML Files (*.htm *.html)"});
  if (!chosen) return;
  const std::filesystem::path asked = PathOf(chosen->toStdString());
  const std::filesystem::path path = SavePathFor(asked);
  if (!MayReplace(asked, path)) return;
  if (const auto error = WriteWholeFile(path, SavedText(*text_))) {
    return Tell(ReportNotWritten(*error));
  }
  ShowHint("Saved as " + PathText(path));
}

}  // namespace corvane
