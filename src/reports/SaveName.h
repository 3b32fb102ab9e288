#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace corvane {

/// The path under which Save As writes, from the path that the person chose: a file name without a
/// point gets ".html"; one with a point but without ".htm" (small letters) anywhere in it keeps
/// what stands before its first point and gets ".html"; any other stays. Folders are never changed.
std::filesystem::path SavePathFor(const std::filesystem::path& chosen);

/// True when SavePathFor gave another path than the dialog asked about, and that file exists: the
/// person has to be asked before it is replaced.
bool MustAskBeforeReplacing(const std::filesystem::path& chosen,
                            const std::filesystem::path& savePath);

/// What Save As writes: the report text as a single line with its end.
std::string SavedText(std::string_view reportText);

}  // namespace corvane
