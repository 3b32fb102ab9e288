#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

using Date = std::chrono::year_month_day;

/// What a masked date field shows while it is empty.
inline constexpr std::string_view kEmptyDateMask = "__-__-____";

/// Reads "mm-dd-yyyy". A date is valid when every place of the mask is filled and the calendar has
/// that day, in the years 1901 to 9999.
std::optional<Date> ParseDate(std::string_view text);

/// Writes "mm-dd-yyyy".
std::string FormatDate(const Date& date);

/// Month and day as the day lists show them: "Jan 5".
std::string FormatMonthDay(const Date& date);

/// Whole days from start to end (end minus start; negative when end is earlier).
int DaysBetween(const Date& start, const Date& end);

/// Moves by whole months; where the month reached has no such day, its last day.
Date AddMonths(const Date& date, int months);

/// Moves by whole days.
Date AddDays(const Date& date, int days);

}  // namespace corvane
