#pragma once

#include <cstdint>
#include <optional>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// The rate that a term earns.
struct TermRate {
  double percent = 0;      ///< a year
  double denominator = 0;  ///< days of the year of the daily rate factor
  /// 1 when withdrawals every so many months have to fill the term, as for a first period.
  std::int16_t firstPeriod = 1;
};

/// Unrounded interest of one term, by the compounding unit and the required withdrawals of the
/// account. Where no unit is set the interest stays as it is. The caller looks at whether the
/// interest is finite.
/// @param principal grows only with withdrawals every so many days
/// @param term as entered: days without compounding, else N-day, N-month or N-year periods; comes
///   back as days, and for years as it was
/// @return a refusal of the withdrawal periods or of a term that cannot be counted
std::optional<Refusal> CalcTermInterest(SessionRecord& session, const TermRate& rate,
                                        double& principal, double& term, double& interest);

/// The days of so many N-month periods from the session's BeginMonth and BeginYear, or nothing
/// for more months than can be counted.
std::optional<double> MonthPeriodsInDays(SessionRecord& session, double periods);

}  // namespace corvane
