#pragma once

#include <filesystem>
#include <map>
#include <variant>

#include <QByteArray>
#include <QString>

namespace corvane {

/// What stands in a compiled help file, by its path there, such as "main-menu.htm" or "#IVB".
using HelpContent = std::map<QString, QByteArray>;

/// Takes a compiled help file apart, but only the very one that was built with this program: the
/// library that does it can be led astray by others. Its bytes are read once, up to the size of
/// that file, compared, and no longer needed afterwards. Anything else gives what to tell the
/// person.
std::variant<HelpContent, QString> ReadHelpFile(const std::filesystem::path& path);

}  // namespace corvane
