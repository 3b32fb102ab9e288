#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "account/TierTable.h"

namespace corvane {

// What a person is asked of an entry that is valid but looks like a slip of the keys. Nothing is
// refused for it. Texts that are no numbers have refusals of their own.

/// Of a daily rate factor of a year that has other than 360, 365 or 366 days, such as "1/36".
std::optional<std::string> FactorNotice(std::string_view factor);

/// Of a number that is about a hundred times the one before it, or a hundredth, as when a point
/// was left out or a percentage was typed as a fraction; neither is 0. `what` names it: "Balance".
std::optional<std::string> JumpNotice(const std::string& what, const std::string& text,
                                      const std::string& before);

/// JumpNotice of the rate of a tier (from 1) beside that of the tier before.
std::optional<std::string> TierRateNotice(const TierTable& table, int tier);

}  // namespace corvane
