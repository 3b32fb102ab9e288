#pragma once

#include <optional>

#include "formulas/AccountTerms.h"
#include "formulas/Outcome.h"

namespace corvane {

/// What a deposit earns over its term.
struct TermInterest {
  double interest = 0;  ///< currency, unrounded
  double length = 0;    ///< the term as counted: days, or N-year periods
};

/// Whether withdrawals every so many months have to fill the term. They do for an account, a tier
/// and the first period of a stepped account.
enum class Fill { Demanded, Open };

/// Interest of a deposit by the compounding unit and the required withdrawals of its account
/// (Regulation DD, Appendix A, Part I.A). With compounding by days the daily rate compounds every
/// day whatever N is. Fails for a balance, a term or factor days not above 0, for months without a
/// beginning, for more than a million steps, and for withdrawal periods that do not fill the term.
Outcome<TermInterest> InterestOfTerm(const AccountTerms& terms, const Deposit& deposit, Fill fill);

/// What a deposit of 1 gains in its term of N-day periods without withdrawals: the daily rate
/// compounds every day or, where the terms are read so, N times the daily rate once in N days.
double GrowthByDays(const AccountTerms& terms, const Deposit& deposit);

/// How often a count from 1 up to a limit runs: the whole number below it, 0 for a limit below 1.
/// Nothing where the limit is no number or above a million, which no real term comes near and
/// which would keep the user waiting.
std::optional<int> StepCount(double limit);

}  // namespace corvane
