#include "windows/frame/ResultsWindow.h"

#include <QtWidgets>

#include "platform/SaveDialog.h"
#include "support/Paths.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

void ResultsWindow::AddFileItems() {
  AddItem("mnuAddToFile", "Add &To File...", [this] { AddToChosenFile(); });
  auto* table = AddItem("mnuTable", "&Back to the Table", [this] { routes().ShowTable(); });
  table->setVisible(routes().HasTable());
}

QAction* ResultsWindow::AddItem(const char* name, const char* text, Handler handler) {
  auto* item = new QAction(text, this);
  item->setObjectName(name);
  findChild<QMenu*>("mnuFile")->insertAction(findChild<QAction*>("mnuMain"), item);
  OnMenu(item, std::move(handler));
  return item;
}

void ResultsWindow::AddToChosenFile() {
  std::filesystem::path& last = session().checkFile;
  if (last.empty()) last = session().dataFolder / "checks.csv";
  const auto chosen =
      AskSavePath(this, {.title = "Add To File",
                         .folder = QString::fromStdString(PathText(last.parent_path())),
                         .fileName = QString::fromStdString(PathText(last.filename())),
                         .filter = "Tables (*.csv);;All files (*)",
                         .adds = true});
  if (!chosen) return;
  std::filesystem::path file = PathOf(chosen->toStdString());
  if (!file.has_extension()) file += ".csv";
  const AddOutcome outcome = AddTo(file);
  if (const auto* refusal = std::get_if<Refusal>(&outcome)) return Tell(*refusal);
  last = file;
  ShowHint(std::get<std::string>(outcome));
}

}  // namespace corvane
