#include "formulas/AnnualYield.h"

#include <cmath>

#include "account/SessionRecord.h"

namespace corvane {

double GrowthOf(double rate, double power) {
  return std::expm1(power * std::log1p(rate));
}

double AnnualYield(double interest, double principal, double exponent) {
  return 100 * GrowthOf(interest / principal, exponent);
}

double YearBasis(const SessionRecord& session) {
  return session.DaysInYear365 ? 365 : 366;
}

}  // namespace corvane
