#include "reports/DataFolder.h"

namespace corvane {

std::filesystem::path MakeDataFolder(const std::filesystem::path& documents) {
  if (documents.empty()) return {};
  const std::filesystem::path folder = documents / "CORVANEWIN21";
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  return failure ? std::filesystem::path{} : folder;
}

}  // namespace corvane
