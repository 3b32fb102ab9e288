#include "windows/frame/FileDrop.h"

#include <QtWidgets>

#include "support/Paths.h"

namespace corvane {

namespace {

std::vector<std::filesystem::path> FilesOf(const QMimeData& dropped) {
  std::vector<std::filesystem::path> files;
  for (const QUrl& url : dropped.urls()) {
    if (url.isLocalFile()) files.push_back(PathOf(url.toLocalFile().toStdString()));
  }
  return files;
}

}  // namespace

FileDrop::FileDrop(QWidget& window, Handler handler)
    : QObject(&window), handler_(std::move(handler)) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) return false;
  auto* drop = static_cast<QDropEvent*>(event);
  const auto files = FilesOf(*drop->mimeData());
  if (files.empty()) return false;
  drop->acceptProposedAction();
  // The program that the files come from waits until the drop is taken.
  if (event->type() == QEvent::Drop) {
    QTimer::singleShot(0, this, [this, files] { handler_(files); });
  }
  return true;
}

}  // namespace corvane
