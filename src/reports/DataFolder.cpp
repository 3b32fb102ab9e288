#include "reports/DataFolder.h"

namespace corvane {

DataFolder MakeDataFolder(const std::filesystem::path& documents) {
  if (!documents.is_absolute()) return {};
  const std::filesystem::path folder = documents / "CORVANEWIN21";
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  return {folder, failure ? failure.message() : ""};
}

}  // namespace corvane
