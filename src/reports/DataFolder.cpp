#include "reports/DataFolder.h"

namespace corvane {

std::filesystem::path MakeDataFolder(const std::filesystem::path& documents) {
  if (!documents.is_absolute()) return {};
  const std::filesystem::path folder = documents / "CORVANEWIN21";
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

}  // namespace corvane
