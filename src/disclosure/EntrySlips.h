#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// What is asked of a field of the current entry that looks like a slip: a daily rate factor of no
/// year, or a balance or rate far from that of the entry before. Nothing for any other control.
std::optional<std::string> SlipOf(const DisclosureCheck& check, const DisclosureEntry& entry,
                                  std::string_view control);

/// What is asked beside the results of the daily rate factor of the entry that was completed last:
/// where Calculate followed the typing at once, the question went with the entry window.
std::optional<std::string> SlipOfResults(const DisclosureCheck& check);

}  // namespace corvane
