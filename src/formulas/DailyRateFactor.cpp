#include "formulas/DailyRateFactor.h"

#include "support/NumberText.h"

namespace corvane {

std::optional<double> FactorDenominator(std::string_view factor) {
  const auto slash = factor.find('/');
  if (slash == std::string_view::npos) return std::nullopt;
  return NumericValue(factor.substr(slash + 1));
}

double DailyRate(double ratePercent, double denominator) {
  return ratePercent / 100 / denominator;
}

}  // namespace corvane
