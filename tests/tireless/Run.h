#pragma once

#include <vector>

#include "Act.h"

namespace corvane {

/// Does the acts one after the other, starting the program again whenever they end it, and checks
/// after each: 0 when nothing broke, else what broke is on standard error. Tells at the end which
/// acts held the windows longest and what the memory grew by.
int Run(const std::vector<Act>& acts);

}  // namespace corvane
