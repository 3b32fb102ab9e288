#pragma once

#include <string>
#include <vector>

#include "Act.h"

namespace corvane {

/// The acts of a file, one a line.
std::vector<Act> ReadActs(const std::string& file);

/// Lets a process of its own do the acts, so that it may crash, and looks at what it prints. Where
/// it breaks, finds fewer acts that still break it and prints them. 0 when nothing broke.
int TryAndShorten(const std::string& program, const std::vector<Act>& acts);

}  // namespace corvane
