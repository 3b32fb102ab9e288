#pragma once

#include <string>

#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// What the entry window asks for, and what its button then does.
std::string NextStepOfEntry(const DisclosureCheck& check);

/// What the results window can be left for: "All tiers computed. Back returns to the
/// last one."
std::string NextStepOfResults(const DisclosureCheck& check);

}  // namespace corvane
