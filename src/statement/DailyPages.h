#pragma once

#include <cstddef>
#include <string>

#include "support/Dates.h"

namespace corvane {

struct SessionRecord;

/// The rows of one page of the daily window.
inline constexpr std::size_t kDaysPerPage = 33;

/// Days of a period as positions, the first day at 0: from first on, without end.
struct DaySpan {
  std::size_t first;
  std::size_t end;
};

/// The days that a page (1 to 3) shows: 1 to 33, 34 to 66, 67 to 96, as far as the period has them.
DaySpan DaysOnPage(int page, std::size_t dayCount);

/// Whether "Next" leads on from a page: while the period has days beyond it.
bool HasNextPage(int page, std::size_t dayCount);

/// The label of a day: its date as "mmm d" (Jan 5), so many days after the start.
std::string DayLabel(DateSerial periodStart, std::size_t day);

/// lblMinADB and lblMinBal of the daily window.
std::string MinimumAdbText(const SessionRecord& session);
std::string MinimumDailyBalanceText(const SessionRecord& session);

}  // namespace corvane
