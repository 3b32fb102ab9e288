#include "formulas/AnnualYield.h"

#include <cmath>

#include "support/Rounding.h"

namespace corvane {

namespace {

constexpr double kNoAmount = 1e13;
constexpr double kNoApy = 1e5;

}  // namespace

bool IsAmount(double amount) {
  return std::fabs(amount) < kNoAmount;
}

bool IsApy(double apy) {
  return std::fabs(apy) < kNoApy;
}

double GrowthOf(double rate, double power) {
  return std::expm1(power * std::log1p(rate));
}

Outcome<Yield> YieldOf(const Reading& reading, double interest, double principal, double exponent) {
  const double rounded = RoundToCents(interest);
  const double counted = reading.exactInterest ? interest : rounded;
  const double apy = 100 * GrowthOf(counted / principal, exponent);
  if (!IsAmount(rounded) || !IsAmount(principal) || !IsApy(apy)) return Failure::NotComputable;
  return Yield{rounded, RoundToCents(apy)};
}

double YieldExponent(const Compounding& compounding, double yearDays, double length) {
  return compounding.unit == Unit::Years ? 1 / (compounding.length * length) : yearDays / length;
}

}  // namespace corvane
