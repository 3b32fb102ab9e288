#pragma once

#include <filesystem>

namespace corvane {

struct SessionRecord;

/// Makes sure that the data folder for reports exists in the documents folder and stores it in
/// AppDataFolder. Without a documents folder, or when the folder cannot be made, start-up goes on
/// with AppDataFolder as it was.
void EnsureDataFolder(SessionRecord& session, const std::filesystem::path& documents);

}  // namespace corvane
