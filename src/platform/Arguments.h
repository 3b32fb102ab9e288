#pragma once

#include <optional>
#include <span>
#include <string>

namespace corvane {

/// What the program writes instead of opening a window: its version or its help, for the first
/// argument that asks for one. Without such an argument nothing; all others are left to Qt.
std::optional<std::string> AnswerTo(std::span<const char* const> arguments);

}  // namespace corvane
