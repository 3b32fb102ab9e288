#pragma once

#include <optional>

#include "statement/DailyBalances.h"

namespace corvane {

/// What can be taken back: the days before each change, the latest change last.
struct DayHistory {
  std::vector<std::vector<DayEntry>> before;
};

/// The days that a change touches: balances and typed rates, since other rates follow from them.
/// Nothing where the two are the same.
std::optional<DaySpan> ChangedDays(const DailyBalances& before, const DailyBalances& after);

/// Keeps the days before a change, so that it can be taken back.
void Remember(DayHistory& history, const DailyBalances& before);

/// The days before the latest change, which is then no longer remembered; the same days where there
/// is none.
DailyBalances TakeBack(DayHistory& history, DailyBalances daily);

/// What is told of a change of several days: "Changed: Mar 15 to Apr 14. Ctrl+Z takes it back."; of
/// one day or none nothing.
std::string ChangeText(const DailyBalances& before, const DailyBalances& after);

}  // namespace corvane
