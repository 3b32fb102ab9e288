#pragma once

#include <filesystem>

namespace corvane {

/// The data folder for reports in the documents folder, made if need be. Empty without a documents
/// folder and when it cannot be made.
std::filesystem::path MakeDataFolder(const std::filesystem::path& documents);

}  // namespace corvane
