#pragma once

#include <cstdint>
#include <optional>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

// Interest of a term in which interest must be withdrawn (Regulation DD, Appendix A, Part I.A: the
// interest withdrawn earns no further interest). All three read W, the number of withdrawal
// periods, from WdrwlPeriods and N from CompoundingDays; interest is unrounded. More than a
// million steps are refused as not computable; a refusal leaves the arguments as they were.

/// Compounding every N days, interest withdrawn every so many days.
/// @param rate percent a year
/// @param denominator days of the year of the daily rate factor
/// @param principal grows by the interest of all withdrawal periods when W is above 1
/// @param term number of N-day periods; comes back as days
/// @param interest stays as it is when W is below 1
std::optional<Refusal> CalcDailyInterestDayWithdrawals(SessionRecord& session, double rate,
                                                       double denominator, double& principal,
                                                       double& term, double& interest);

/// Steps of one day, interest withdrawn every M months (BtwnReqIntWdrwl), counted from BeginMonth.
/// @param dailyRate fraction a day
/// @param term days of the term
/// @param firstPeriod 1 when the days of the withdrawal periods have to fill the term
std::optional<Refusal> CalcDailyInterestMonthWithdrawals(SessionRecord& session, double dailyRate,
                                                         double principal, double term,
                                                         double& interest,
                                                         std::int16_t firstPeriod);

/// Compounding every N months by the days of those months, interest withdrawn every M months. The
/// number of N-month periods in the term is read from EnteredTerm; M x W months have to fill it.
/// @param dailyRate fraction a day
std::optional<Refusal> CalcMonthlyInterestWithdrawals(SessionRecord& session, double dailyRate,
                                                      double principal, double& interest);

}  // namespace corvane
