#include "platform/Arguments.h"

#include <string_view>

#include "support/ProgramVersion.h"

namespace corvane {

namespace {

constexpr const char* kUsage =
    "Usage: corvane [OPTION]\n"
    "Verifies annual percentage yields by Regulation DD (12 CFR 1030), Appendix A.\n"
    "\n"
    "  -h, --help     write this and end\n"
    "  -v, --version  write the version and end\n"
    "\n"
    "Reports go to the folder CORVANEWIN21 of your documents folder.\n";

}  // namespace

std::optional<std::string> AnswerTo(std::span<const char* const> arguments) {
  for (const std::string_view argument : arguments) {
    if (argument == "-h" || argument == "--help") return kUsage;
    if (argument == "-v" || argument == "--version") {
      return std::string("corvane ") + kProgramVersion + "\n";
    }
  }
  return std::nullopt;
}

}  // namespace corvane
