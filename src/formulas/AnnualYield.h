#pragma once

namespace corvane {

struct SessionRecord;

/// (1 + rate) to a power, less 1, without losing the digits of a small rate.
double GrowthOf(double rate, double power);

/// APY in percent, unrounded: 100 x ((1 + interest / principal) ^ exponent - 1), where the exponent
/// is the days of the year over the days in term, or 1 over the years (Regulation DD, Appendix A,
/// Part I.A). Not finite where the principal is 0.
double AnnualYield(double interest, double principal, double exponent);

/// 365 when the account has a 365-day year, else 366.
double YearBasis(const SessionRecord& session);

}  // namespace corvane
