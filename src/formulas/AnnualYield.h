#pragma once

#include "formulas/AccountTerms.h"
#include "formulas/Outcome.h"

namespace corvane {

/// What an account earns: interest in currency, rounded to cents, and the annual percentage yield
/// in percent, rounded to hundredths.
struct Yield {
  double interest = 0;
  double apy = 0;
};

/// Whether an account can have such an amount of currency: finite and below 1e13.
bool IsAmount(double amount);

/// Whether an account can have such an annual percentage yield: finite and below 100,000 %.
bool IsApy(double apy);

/// (1 + rate) to a power, less 1, without losing the digits of a small rate.
double GrowthOf(double rate, double power);

/// The general formula of Regulation DD, Appendix A, Part I.A: 100 x ((1 + interest / principal) ^
/// exponent - 1), of the interest as rounded to cents unless the reading is another. Fails where no
/// account has such an interest or yield.
Outcome<Yield> YieldOf(const Reading& reading, double interest, double principal, double exponent);

/// The exponent of the general formula: the days of the year over the days of the term or, with
/// compounding by years, 1 over its years. `length` is the term as counted: days, or N-year
/// periods.
double YieldExponent(const Compounding& compounding, double yearDays, double length);

}  // namespace corvane
