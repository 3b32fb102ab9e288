#include "support/Rounding.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace corvane {

namespace {

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
/// How near to an exact half a value counts as that half.
constexpr double kHalfTolerance = 1e-9;
/// From here on a double holds whole numbers only, so that there is nothing left to round.
constexpr double kLargestFraction = 4503599627370496.0;  // 2^52

/// What the few operations that lead to an amount can add to its scaled value.
double BinaryNoise(double scaled) {
  constexpr double kUnitsInTheLastPlace = 3;
  constexpr double kMost = 0.25;
  const double noise =
      kUnitsInTheLastPlace * std::numeric_limits<double>::epsilon() * std::fabs(scaled);
  return std::min(noise, kMost);
}

}  // namespace

double RoundToDecimals(double value, int decimals) {
  const double scale = kPowersOfTen[decimals];
  const double scaled = value * scale;
  if (!(std::fabs(scaled) < kLargestFraction)) return value;
  // As std::floor and std::round, which are calls where the processor's own rounding is not known.
  const auto towardsZero = static_cast<std::int64_t>(scaled);
  const std::int64_t below = towardsZero - (scaled < static_cast<double>(towardsZero) ? 1 : 0);
  const double fraction = scaled - static_cast<double>(below);
  // At 15 decimals the tolerance would swallow every value; there only a real half is one.
  const double tolerance = decimals > 8 ? 0 : std::max(kHalfTolerance * scale, BinaryNoise(scaled));
  const bool isHalf = std::fabs(fraction - 0.5) <= tolerance;
  const bool goesUp = isHalf ? below % 2 != 0 : fraction > 0.5;
  return static_cast<double>(below + (goesUp ? 1 : 0)) / scale;
}

}  // namespace corvane
