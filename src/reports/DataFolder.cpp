#include "reports/DataFolder.h"

#include "account/SessionRecord.h"

namespace corvane {

void EnsureDataFolder(SessionRecord& session, const std::filesystem::path& documents) {
  if (documents.empty()) return;
  const std::filesystem::path folder = documents / "CORVANEWIN21";
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (failure) return;
  const std::u8string text = folder.u8string();
  session.AppDataFolder.assign(text.begin(), text.end());
}

}  // namespace corvane
