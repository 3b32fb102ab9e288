#pragma once

#include <span>
#include <vector>

#include "formulas/AnnualYield.h"

namespace corvane {

// The annual percentage yield that an account has to disclose (Regulation DD, Appendix A, Part I).
// Each fails as InterestOfTerm does, and where no account has such a balance, interest or APY.

/// A regular-rate account, or one tier by method A (Part I.A and Part I.D, method A).
Outcome<Yield> RegularYield(const AccountTerms& terms, const Deposit& deposit);

struct SteppedYield {
  std::vector<double> interest;  ///< of each period, currency, unrounded
  Yield whole;                   ///< of the whole term on the first balance
};

/// A stepped-rate account (Part I.B): the periods follow one another, the first starting on
/// `balance`; their own balances are not read. What a period earns stays in the account and earns
/// in the next one, unrounded, except without compounding and where interest must be withdrawn.
/// With compounding by years every year has 365 days.
/// @param periods at least one
Outcome<SteppedYield> SteppedYieldOf(const AccountTerms& terms, double balance,
                                     std::span<const Deposit> periods);

/// A deposit in an account tiered by method B (Part I.D): the part of the balance that lies in a
/// tier earns the tier's rate. The year has so many days as YearDaysOfMethodB.
/// @param tiers lowest first, at least one
/// @param reaching the whole deposit; its rate is not read
Outcome<Yield> TieredYield(const AccountTerms& terms, std::span<const Tier> tiers,
                           const Deposit& reaching);

/// The days of the year of an account tiered by method B: 366 when 29 February counts or the
/// account has a 366-day year; by months, when the beginning year is divisible by 4.
int YearDaysOfMethodB(const AccountTerms& terms, const Deposit& reaching);

struct CompositeRate {
  double percent = 0;  ///< a year, unrounded
  double days = 0;     ///< of the whole term
};

/// The rates of the periods, each weighted by its days; of one period its rate. It may be disclosed
/// as the APY of a term over one year whose interest is paid out at least once a year and does not
/// compound (Part I.E). Not for compounding by years.
/// @param periods at least one; their balances are not read
Outcome<CompositeRate> CompositeRateOf(const AccountTerms& terms, std::span<const Deposit> periods);

}  // namespace corvane
