#include "account/DailyRateFactor.h"

#include "support/NumberText.h"

namespace corvane {

std::optional<double> FactorDays(std::string_view factor) {
  factor = Trim(factor);
  if (!factor.starts_with("1/")) return std::nullopt;
  const double days = NumericValue(factor.substr(2));
  if (!IsWhole(days) || days < 1) return std::nullopt;
  return days;
}

std::string DefaultFactor(int yearDays) {
  return "1/" + std::to_string(yearDays);
}

}  // namespace corvane
