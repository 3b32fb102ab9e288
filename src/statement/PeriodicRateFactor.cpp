#include "statement/PeriodicRateFactor.h"

#include "account/SessionRecord.h"
#include "formulas/DayRate.h"

namespace corvane {

std::optional<double> FactorDays(std::string_view factor) {
  factor = Trim(factor);
  if (!factor.starts_with("1/")) return std::nullopt;
  const double days = NumericValue(factor.substr(2));
  if (!IsWhole(days) || days < 1 || days > 366) return std::nullopt;
  return days;
}

void Check_DRF(SessionRecord& session, const StatementEntry& entry) {
  const std::optional<double> days = FactorDays(entry.txtDRFactor.text);
  if (!days) return;
  session.DaysInYear = *days;
  session.DailyPeriodicRate = PeriodicRate(entry.txtIntRate.Value(), *days);
}

std::optional<Refusal> FactorChanged(SessionRecord& session, const StatementEntry& entry) {
  const std::string& text = entry.txtDRFactor.text;
  session.DailyRateFactor = text;
  if (text.size() < 5 || !entry.txtIntRate.enabled) return std::nullopt;
  if (Trim(text).substr(0, 2).find('/') != 1) {
    return Refusal{.text = "Please enter the valid Daily Rate factor", .field = "txtDRFactor"};
  }
  Check_DRF(session, entry);
  return std::nullopt;
}

}  // namespace corvane
