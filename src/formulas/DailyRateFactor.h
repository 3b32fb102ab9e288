#pragma once

#include <optional>
#include <string_view>

namespace corvane {

/// The days of the year of a daily rate factor such as "1/365": the number after its first "/", 0
/// where no number follows, nothing when there is no "/".
std::optional<double> FactorDenominator(std::string_view factor);

/// The rate of one day as a fraction: a percent number divided by 100 and by the denominator of
/// the daily rate factor.
double DailyRate(double ratePercent, double denominator);

}  // namespace corvane
