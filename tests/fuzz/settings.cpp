#include "Fuzz.h"

#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "support/IniFile.h"
#include "support/WholeFile.h"

using namespace corvane;

namespace {

/// A file of this process, in memory where the system has a place for that.
const std::filesystem::path& SettingsFile() {
  static const std::filesystem::path file = [] {
    const std::filesystem::path memory = "/dev/shm";
    const auto folder = exists(memory) ? memory : std::filesystem::temp_directory_path();
    return folder / ("corvane_fuzz_" + std::to_string(::getpid()) + ".ini");
  }();
  static const struct Cleaner {
    ~Cleaner() { std::filesystem::remove(SettingsFile()); }
  } cleaner;
  return file;
}

}  // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const std::string section = input.PickValueInArray({"Files", "A b", "files"});
  const std::string value = "C:/" + std::to_string(input.ConsumeIntegral<int>());
  const std::string before = input.ConsumeRemainingBytesAsString();
  std::ofstream(SettingsFile(), std::ios::binary) << before;

  const std::string other = ReadIniValue("Other", "Key", "-", SettingsFile());
  DEMAND(other.size() <= 254);
  DEMAND(WriteIniValue(section, "DataPath", value, SettingsFile()));
  DEMAND(ReadIniValue(section, "datapath", "", SettingsFile()) == value);
  DEMAND(ReadIniValue("Other", "Key", "-", SettingsFile()) == other);

  const std::string after = std::get<std::string>(ReadWholeFile(SettingsFile()));
  const auto lines = LinesOf(after);
  DEMAND(lines.size() <= LinesOf(before).size() + 2);
  return 0;
}
