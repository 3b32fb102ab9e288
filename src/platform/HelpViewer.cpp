#include "platform/HelpViewer.h"

#include <QDesktopServices>
#include <QUrl>

#include "platform/MessageBox.h"
#include "support/Paths.h"
#include "support/ProgramTitle.h"

namespace corvane {

void ShowHelp(QWidget* parent, const std::filesystem::path& file, int /*context*/) {
  const QString path = QString::fromStdString(PathText(file));
  std::error_code failure;
  const bool opened = std::filesystem::exists(file, failure) &&
                      QDesktopServices::openUrl(QUrl::fromLocalFile(path));
  if (opened) return;
  ShowMessage(parent, "The help file is missing or cannot be opened: " + path, kProgramTitle,
              QMessageBox::Warning);
}

}  // namespace corvane
