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

bool IsEven(double whole) {
  return static_cast<std::int64_t>(whole) % 2 == 0;
}

}  // namespace

double RoundToDecimals(double value, int decimals) {
  const double scale = kPowersOfTen[decimals];
  const double scaled = value * scale;
  if (!(std::fabs(scaled) < kLargestFraction)) return value;
  const double below = std::floor(scaled);
  // At 15 decimals the tolerance would swallow every value; there only a real half is one.
  const double tolerance = decimals > 8 ? 0 : std::max(kHalfTolerance * scale, BinaryNoise(scaled));
  if (std::fabs(scaled - below - 0.5) <= tolerance) {
    return (IsEven(below) ? below : below + 1) / scale;
  }
  return std::round(scaled) / scale;
}

}  // namespace corvane
