#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

/// The days of the year of a daily rate factor such as "1/365": "1/" and a whole number from 1 on,
/// blanks around it allowed; nothing for any other text.
std::optional<double> FactorDays(std::string_view factor);

/// The factor of an account whose year has so many days: "1/365" or "1/366".
std::string DefaultFactor(int yearDays);

}  // namespace corvane
