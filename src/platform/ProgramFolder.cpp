#include "platform/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace corvane {

namespace {

std::filesystem::path PathOf(const QString& text) {
  return std::filesystem::path(text.toStdU16String());
}

}  // namespace

std::filesystem::path ProgramFolder() {
  return PathOf(QCoreApplication::applicationDirPath()).make_preferred();
}

std::filesystem::path HelpFile() {
  return ProgramFolder() / "CorvaneWin.chm";
}

std::filesystem::path SettingsFile() {
  return ProgramFolder() / "CORVANE.INI";
}

std::filesystem::path DocumentsFolder() {
  return PathOf(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
      .make_preferred();
}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace corvane
