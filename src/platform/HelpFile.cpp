#include "platform/HelpFile.h"

#include <memory>

#include <HelpFileRecord.h>
#include <chm_lib.h>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include "support/Paths.h"

namespace corvane {

namespace {

/// The bytes of the file that was built with this program.
std::variant<QByteArray, QString> ReadOwnBytes(const QString& path) {
  if (!QFileInfo(path).isFile()) return "The help file is missing: " + path;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return "The help file cannot be read: " + path + "\n" + file.errorString();
  }
  const QByteArray bytes = file.size() == kHelpFileSize ? file.read(kHelpFileSize) : QByteArray();
  const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
  if (digest == kHelpFileSha256) return bytes;
  return "The help file is damaged, or it belongs to another version of the program: " + path +
         "\nIt is not opened. Install the program again to get its help back.";
}

int AddEntry(chmFile* file, chmUnitInfo* entry, void* content) {
  QByteArray bytes(static_cast<qsizetype>(entry->length), '\0');
  auto* buffer = reinterpret_cast<unsigned char*>(bytes.data());
  const LONGINT64 got = chm_retrieve_object(file, entry, buffer, 0, bytes.size());
  if (got != bytes.size()) return CHM_ENUMERATOR_FAILURE;
  static_cast<HelpContent*>(content)->emplace(QString::fromUtf8(entry->path).mid(1), bytes);
  return CHM_ENUMERATOR_CONTINUE;
}

/// The library opens files by name only. It gets a copy of its own, which nobody can have changed
/// since the bytes were compared.
std::variant<HelpContent, QString> TakeApart(const QByteArray& bytes) {
  QTemporaryFile copy;
  if (!copy.open() || copy.write(bytes) != bytes.size() || !copy.flush()) {
    return "The help file cannot be opened: " + copy.errorString();
  }
  const QByteArray name = QFile::encodeName(copy.fileName());
  const std::unique_ptr<chmFile, void (*)(chmFile*)> file(chm_open(name), chm_close);
  const int kinds = CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_SPECIAL | CHM_ENUMERATE_FILES;
  HelpContent content;
  if (file && chm_enumerate(file.get(), kinds, AddEntry, &content)) return content;
  return "The help file cannot be opened.";
}

}  // namespace

std::variant<HelpContent, QString> ReadHelpFile(const std::filesystem::path& path) {
  auto bytes = ReadOwnBytes(QString::fromStdString(PathText(path)));
  if (const auto* message = std::get_if<QString>(&bytes)) return *message;
  return TakeApart(std::get<QByteArray>(bytes));
}

}  // namespace corvane
