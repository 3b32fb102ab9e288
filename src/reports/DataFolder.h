#pragma once

#include <filesystem>
#include <string>

namespace corvane {

/// The folder that the reports go to; empty without a documents folder.
struct DataFolder {
  std::filesystem::path path;
  std::string reason;  ///< why it cannot be made; empty when it stands
};

/// The data folder for reports in the documents folder, made if need be and possible.
DataFolder MakeDataFolder(const std::filesystem::path& documents);

}  // namespace corvane
