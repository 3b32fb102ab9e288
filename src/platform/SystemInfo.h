#pragma once

#include <optional>

#include <QString>

namespace corvane {

/// A string value of the machine-wide registry; nothing where the key or value is missing, and on
/// desktops that have no registry.
std::optional<QString> GetKeyValue(const QString& keyPath, const QString& valueName);

/// Starts the desktop's system-information program; false when there is none.
bool StartSysInfo();

}  // namespace corvane
