#pragma once

#include <filesystem>
#include <string>

namespace corvane {

/// The value of a key in a settings file of "[section]" and "key=value" lines. Names match without
/// regard to case; blanks and one pair of quotes around a value are dropped; values are cut to 254
/// characters. A missing file, section or key and an empty value give the default.
std::string ReadIniValue(const std::string& section, const std::string& key,
                         const std::string& defaultValue, const std::filesystem::path& file);

/// Puts the value under the key, making the file, the section or the key as needed; every other
/// line stays as it is. False when the file could not be written, which then is as it was.
bool WriteIniValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::filesystem::path& file);

}  // namespace corvane
