#include "statement/DailyPages.h"

#include <algorithm>

#include "account/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

DaySpan DaysOnPage(int page, std::size_t dayCount) {
  const std::size_t first = kDaysPerPage * static_cast<std::size_t>(page - 1);
  return {std::min(first, dayCount), std::min(first + kDaysPerPage, dayCount)};
}

bool HasNextPage(int page, std::size_t dayCount) {
  return DaysOnPage(page, dayCount).end < dayCount;
}

std::string DayLabel(DateSerial periodStart, std::size_t day) {
  const auto date = DateOf(periodStart + static_cast<double>(day));
  if (!date) return {};
  return std::string(kMonths[static_cast<unsigned>(date->month()) - 1]) + " " +
         std::to_string(static_cast<unsigned>(date->day()));
}

std::string MinimumAdbText(const SessionRecord& session) {
  return "Minimum Required ADB = " + FormatGroupedWhole(session.MinAdb);
}

std::string MinimumDailyBalanceText(const SessionRecord& session) {
  return "Minimum Required Daily Balance = " + FormatGroupedWhole(session.MinDailyBal);
}

}  // namespace corvane
