#pragma once

#include <optional>

namespace corvane {

/// How often a count from 1 up to a limit runs: the whole number below it, 0 for a limit below 1.
/// Nothing where the limit is no number or above a million, which no real term comes near and
/// which would keep the user waiting.
inline std::optional<int> StepCount(double limit) {
  constexpr double kMostSteps = 1e6;
  if (!(limit <= kMostSteps)) return std::nullopt;
  return limit < 1 ? 0 : static_cast<int>(limit);
}

}  // namespace corvane
