#include "platform/SystemInfo.h"

#include <QFileInfo>
#include <QProcess>
#include <QSettings>

namespace corvane {

std::optional<QString> GetKeyValue([[maybe_unused]] const QString& keyPath,
                                   [[maybe_unused]] const QString& valueName) {
#ifdef Q_OS_WIN
  const QSettings key("HKEY_LOCAL_MACHINE\\" + keyPath, QSettings::NativeFormat);
  const QVariant value = key.value(valueName);
  if (value.isValid()) return value.toString();
#endif
  return std::nullopt;
}

bool StartSysInfo() {
  const auto program = GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
  if (program) return QProcess::startDetached(*program, {});
  const auto folder = GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
  if (!folder || !QFileInfo::exists(*folder + "\\MSINFO32.EXE")) return false;
  return QProcess::startDetached(*folder + "\\MSINFO32.EXE", {});
}

}  // namespace corvane
