#pragma once

#include "support/Rounding.h"

namespace corvane {

/// The rate of one day as a fraction: percent a year, divided by 100 and by the days of the year of
/// the daily rate factor.
inline double DailyRate(double ratePercent, double factorDays) {
  return ratePercent / 100 / factorDays;
}

/// DailyRate kept to 15 decimals, as interest that is added up day by day takes it.
inline double PeriodicRate(double ratePercent, double factorDays) {
  return RoundIntermediate(DailyRate(ratePercent, factorDays));
}

}  // namespace corvane
