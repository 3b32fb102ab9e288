#include "statement/DayNotice.h"

#include "account/SlipNotice.h"

namespace corvane {

namespace {

std::optional<std::string> NoticeOf(const DailyBalances& daily, std::size_t day,
                                    const std::string& what, std::string DayEntry::*text) {
  std::size_t before = day;
  while (before > 0 && NumericValue(daily.days[before - 1].*text) == 0) --before;
  if (before == 0) return std::nullopt;
  return JumpNotice(what + " of " + DayLabel(daily, day), daily.days[day].*text,
                    daily.days[before - 1].*text);
}

}  // namespace

std::optional<std::string> DayNotice(const DailyBalances& daily, std::size_t day) {
  if (auto notice = NoticeOf(daily, day, "Balance", &DayEntry::balance)) return notice;
  return daily.TakesRates() ? NoticeOf(daily, day, "Rate", &DayEntry::rate) : std::nullopt;
}

}  // namespace corvane
