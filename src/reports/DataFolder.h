#pragma once

#include <filesystem>

namespace corvane {

/// The data folder for reports in the documents folder, made if need be and possible. Empty without
/// a documents folder.
std::filesystem::path MakeDataFolder(const std::filesystem::path& documents);

}  // namespace corvane
