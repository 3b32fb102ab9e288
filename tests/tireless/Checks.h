#pragma once

#include <string>

#include "windows/frame/WindowRegistry.h"

namespace corvane {

/// What is wrong with the windows as they stand; empty when nothing is.
std::string FaultOf(const WindowRegistry& windows, const Session& session);

}  // namespace corvane
