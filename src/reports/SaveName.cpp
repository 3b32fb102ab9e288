#include "reports/SaveName.h"

#include "reports/ReportFile.h"

namespace corvane {

namespace {

std::string SaveNameFor(const std::string& name) {
  if (name.find(".htm") != std::string::npos) return name;
  return name.substr(0, name.find('.')) + ".html";
}

}  // namespace

std::string SavePathFor(std::string_view chosenPath) {
  const std::filesystem::path chosen = PathOf(chosenPath);
  const std::string name = Utf8Of(chosen.filename());
  const std::string saveName = SaveNameFor(name);
  if (saveName == name) return std::string(chosenPath);
  return Utf8Of(chosen.parent_path() / PathOf(saveName));
}

bool MustAskBeforeReplacing(std::string_view chosenPath, std::string_view savePath) {
  std::error_code ignored;
  return chosenPath != savePath && std::filesystem::exists(PathOf(savePath), ignored);
}

std::string SavedText(std::string_view reportText) {
  return std::string(reportText) + "\r\n";
}

}  // namespace corvane
