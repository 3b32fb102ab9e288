#include "formulas/ApyEarned.h"

#include <cmath>

namespace corvane {

double ApyEarned(double interest, double balance, double days, double yearDays) {
  return 100 * (std::pow(1 + interest / balance, yearDays / days) - 1);
}

double ApyEarnedAdditional(double interest, double balance, double days, double yearDays,
                           double compoundingPeriodDays) {
  const double ofCompoundingPeriod = interest / balance / days * compoundingPeriodDays;
  return 100 * (std::pow(1 + ofCompoundingPeriod, yearDays / compoundingPeriodDays) - 1);
}

}  // namespace corvane
