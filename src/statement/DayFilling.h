#pragma once

#include <string_view>
#include <variant>

#include "statement/DailyBalances.h"

namespace corvane {

// Many days at once. A table, see DayTable.h, is taken as a whole or not at all. Without dates each
// of its lines is a day. With dates the days between two lines keep the last balance, and so do
// those up to the end of the period; the dates have to rise and to lie in it. A line without a rate
// leaves the day's as it is, or with dates keeps that of the line before. Where the account gives
// the rates, those of the table have to be the same.

/// The days with the cells of the clipboard, from the day of the place on.
std::variant<DailyBalances, Refusal> PasteDays(const DailyBalances& daily, const DayPlace& place,
                                               std::string_view copied);

/// The days as a CSV file has them. Days that the file does not have are without a balance.
std::variant<DailyBalances, Refusal> LoadDays(const DailyBalances& daily, std::string_view csv);

/// The days with balance and rate of the day before in this one; the first has none before it.
DailyBalances CopyDayBefore(const DailyBalances& daily, std::size_t day);

/// The days with balance and rate of this one in all that follow. What this day lacks comes from
/// the day before.
DailyBalances CopyToEnd(const DailyBalances& daily, std::size_t day);

}  // namespace corvane
