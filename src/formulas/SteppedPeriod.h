#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// One period of a stepped-rate account.
struct SteppedPeriod {
  std::int16_t number = 1;  ///< from 1; withdrawals every so many months have to fill period 1
  double rate = 0;          ///< percent a year
  double term = 0;          ///< days without compounding, else N-day, N-month or N-year periods
  double balance = 0;       ///< on which the period starts
  std::string dailyRateFactor;
};

struct SteppedPeriodResult {
  double interest = 0;  ///< unrounded
  /// The length of the period as TermUnits sums it: counted days where compounding is by months,
  /// else the term as entered.
  double termUnits = 0;
};

/// Interest of a single period (Regulation DD, Appendix A, Part I.B). Reads the withdrawal figures
/// and the beginning month and year of the period from the session and stores its term in
/// EnteredTerm; nothing else is stored. Which balance a period starts on is for the caller to say:
/// see PeriodsBuildOnInterest.
/// @return why there is no result, which then stays as it was
std::optional<Refusal> CalcSteppedPeriod(SessionRecord& session, const SteppedPeriod& period,
                                         SteppedPeriodResult& result);

/// True where the interest of a period stays in the account and earns interest in the next one;
/// false where every period starts on the first balance: without compounding, and where interest
/// must be withdrawn.
bool PeriodsBuildOnInterest(const SessionRecord& session);

/// Interest with compounding every N years, year by year: each year has 365 days whatever the
/// year basis. The number of N-year periods is read from EnteredTerm.
/// @param rate percent a year
/// @param denominator days of the year of the daily rate factor
/// @param principal comes back with its unrounded interest
/// @param interest rounded to 2 decimals
/// @return a refusal for more periods than can be stepped through
std::optional<Refusal> CalcYearlyInterest(SessionRecord& session, double rate, double denominator,
                                          double& principal, double& interest);

}  // namespace corvane
