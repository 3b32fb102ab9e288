#include "platform/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "support/Paths.h"

namespace corvane {

std::filesystem::path ProgramFolder() {
  return PathOf(QCoreApplication::applicationDirPath().toStdString()).make_preferred();
}

std::filesystem::path HelpFile() {
  return ProgramFolder() / "CorvaneWin.chm";
}

std::filesystem::path SettingsFile() {
  return ProgramFolder() / "CORVANE.INI";
}

std::filesystem::path DocumentsFolder() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  // Without a home the desktop names it with two separators, which no browser address can have.
  return PathOf(folder.toStdString()).lexically_normal().make_preferred();
}

}  // namespace corvane
