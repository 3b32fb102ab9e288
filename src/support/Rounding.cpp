#include "support/Rounding.h"

#include <cmath>

namespace corvane {

namespace {

/// How near to an exact half a value counts as that half.
constexpr double kHalfTolerance = 1e-9;
/// From here on a double holds whole numbers only, so that there is nothing left to round.
constexpr double kLargestFraction = 4503599627370496.0;  // 2^52

}  // namespace

double RoundToDecimals(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  const double scaled = value * scale;
  if (!(std::fabs(scaled) < kLargestFraction)) return value;
  const double below = std::floor(scaled);
  // At 15 decimals the tolerance would swallow every value; there only a real half is one.
  const double tolerance = decimals > 8 ? 0 : kHalfTolerance * scale;
  if (std::fabs(scaled - below - 0.5) <= tolerance) {
    return (std::fmod(below, 2.0) == 0 ? below : below + 1) / scale;
  }
  return std::round(scaled) / scale;
}

}  // namespace corvane
