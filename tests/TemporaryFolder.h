#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace corvane {

/// A new, empty folder that no other test, checkout or user shares; goes with all its files when
/// the object does. Where none can be made, the constructor throws a filesystem_error.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("corvane_" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    if (!kept_) std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }
  /// Leaves the folder for a person to look into.
  void Keep() { kept_ = true; }

 private:
  std::filesystem::path path_;
  bool kept_ = false;
};

}  // namespace corvane
