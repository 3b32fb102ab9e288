#pragma once

#include <string>

#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// What the entry window asks for, and what its button then does.
std::string NextStepOfEntry(const DisclosureCheck& check);

/// What the results window can be left for: "Period 1 of 2 computed. Back goes on to period 2."
std::string NextStepOfResults(const DisclosureCheck& check);

}  // namespace corvane
