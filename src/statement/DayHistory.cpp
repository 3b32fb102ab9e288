#include "statement/DayHistory.h"

#include <utility>

namespace corvane {

namespace {

bool IsChanged(const DailyBalances& before, const DailyBalances& after, std::size_t day) {
  const DayEntry& old = before.days.at(day);
  const DayEntry& now = after.days.at(day);
  return old.balance != now.balance || (after.TakesRates() && old.rate != now.rate);
}

}  // namespace

std::optional<DaySpan> ChangedDays(const DailyBalances& before, const DailyBalances& after) {
  DaySpan changed{0, after.days.size()};
  const auto same = [&](std::size_t day) { return !IsChanged(before, after, day); };
  while (changed.first < changed.end && same(changed.first)) ++changed.first;
  while (changed.first < changed.end && same(changed.end - 1)) --changed.end;
  return changed.first < changed.end ? std::optional(changed) : std::nullopt;
}

void Remember(DayHistory& history, const DailyBalances& before) {
  history.before.push_back(before.days);
}

DailyBalances TakeBack(DayHistory& history, DailyBalances daily) {
  if (history.before.empty()) return daily;
  daily.days = std::move(history.before.back());
  history.before.pop_back();
  return daily;
}

std::string ChangeText(const DailyBalances& before, const DailyBalances& after) {
  const auto changed = ChangedDays(before, after);
  if (!changed || changed->end - changed->first == 1) return "";
  return std::string("Changed: ") + DayLabel(after, changed->first) + " to " +
         DayLabel(after, changed->end - 1) + ". Ctrl+Z takes it back.";
}

}  // namespace corvane
