#include "formulas/CheckApy.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvane {

namespace {

constexpr double kTolerance = 0.05;

/// What the binary form of two decimal figures can add to their difference.
double BinaryNoise(double a, double b) {
  const double size = std::max(std::fabs(a), std::fabs(b));
  return 1e-9 + 2 * size * std::numeric_limits<double>::epsilon();
}

}  // namespace

Verdict CheckApy(double disclosedApy, double computedApy) {
  const double difference = std::fabs(disclosedApy - computedApy);
  const bool within = difference <= kTolerance + BinaryNoise(disclosedApy, computedApy);
  return within ? Verdict::Ok : Verdict::Violation;
}

}  // namespace corvane
