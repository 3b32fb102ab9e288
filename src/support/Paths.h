#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace corvane {

/// The path that a UTF-8 text names.
std::filesystem::path PathOf(std::string_view text);

/// A path as windows and messages show it: UTF-8, with the platform's own separators.
std::string PathText(const std::filesystem::path& path);

}  // namespace corvane
