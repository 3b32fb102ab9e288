#pragma once

#include <optional>
#include <string_view>

#include "account/Refusal.h"
#include "statement/StatementEntry.h"

namespace corvane {

/// The days of the year of a daily rate factor such as "1/365": "1/" and a whole number from 1 to
/// 366; nothing for any other text.
std::optional<double> FactorDays(std::string_view factor);

/// Reads the factor into DaysInYear and, with the rate, into DailyPeriodicRate (a fraction per
/// day, kept to 15 decimals); a factor that is none leaves both.
void Check_DRF(SessionRecord& session, const StatementEntry& entry);

/// What a change of the factor does: it is stored, and read once it is long enough to be whole.
std::optional<Refusal> FactorChanged(SessionRecord& session, const StatementEntry& entry);

}  // namespace corvane
