#pragma once

namespace corvane {

/// Annual percentage yield earned in a statement period, in percent, unrounded:
/// 100 x ((1 + interest / balance) ^ (year days / days) - 1), by Regulation DD, Appendix A,
/// Part II.A. Interest and balance (the average daily balance) in currency, days of the period.
/// Not finite where balance or days are 0.
double ApyEarned(double interest, double balance, double days, double yearDays);

/// The special formula for accounts that compound less often than statements are sent (Regulation
/// DD, Appendix A, Part II.B): the period's interest, spread over its days, is taken for a whole
/// compounding period of so many days. Percent, unrounded.
double ApyEarnedAdditional(double interest, double balance, double days, double yearDays,
                           double compoundingPeriodDays);

}  // namespace corvane
