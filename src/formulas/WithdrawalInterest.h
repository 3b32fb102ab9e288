#pragma once

#include "formulas/TermInterest.h"

namespace corvane {

// Interest of a term in which interest must be withdrawn (Regulation DD, Appendix A, Part I.A: the
// interest withdrawn earns no further interest). The deposit is one that InterestOfTerm takes.

/// Compounding every N days, interest withdrawn W times in the term. Fails for a W below 1.
Outcome<TermInterest> WithdrawnEveryDays(const AccountTerms& terms, const Deposit& deposit);

/// Daily compounding, interest withdrawn W times, every M months counted from `begin`. The term is
/// in days; the days of the W x M months have to be the same where filling is demanded.
Outcome<TermInterest> CompoundedByDaysWithdrawnMonthly(const AccountTerms& terms,
                                                       const Deposit& deposit, Fill fill);

/// Compounding every N months by the days of those months, interest withdrawn W times, every M
/// months. M x W months have to fill the term, which has so many days.
Outcome<TermInterest> CompoundedByMonthsWithdrawnMonthly(const AccountTerms& terms,
                                                         const Deposit& deposit, double termDays);

}  // namespace corvane
