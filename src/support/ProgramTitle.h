#pragma once

namespace corvane {

/// The program's name as its windows show it. It is not Qt's display name, which Qt would append
/// to every window title.
inline constexpr const char* kProgramTitle = "Corvane Calculator";

}  // namespace corvane
