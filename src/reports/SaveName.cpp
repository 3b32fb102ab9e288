#include "reports/SaveName.h"

#include "support/Paths.h"

namespace corvane {

namespace {

std::string SaveNameFor(const std::string& name) {
  if (name.find(".htm") != std::string::npos) return name;
  return name.substr(0, name.find('.')) + ".html";
}

}  // namespace

std::filesystem::path SavePathFor(const std::filesystem::path& chosen) {
  std::filesystem::path path = chosen;
  return path.replace_filename(PathOf(SaveNameFor(PathText(chosen.filename()))));
}

bool MustAskBeforeReplacing(const std::filesystem::path& chosen,
                            const std::filesystem::path& savePath) {
  std::error_code ignored;
  return chosen != savePath && std::filesystem::exists(savePath, ignored);
}

std::string SavedText(std::string_view reportText) {
  return std::string(reportText) + "\r\n";
}

}  // namespace corvane
