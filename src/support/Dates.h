#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

using Date = std::chrono::year_month_day;

/// A date as the session record keeps it: a count of days in which 0 means "no date" (the day
/// numbered 0 is 30 December 1899, before the first date that the program accepts).
using DateSerial = double;

/// What a masked date field shows while it is empty.
inline constexpr std::string_view kEmptyDateMask = "__-__-____";

DateSerial SerialOf(const Date& date);
std::optional<Date> DateOf(DateSerial serial);

/// Reads "mm-dd-yyyy". A date is valid when every place of the mask is filled and the calendar has
/// that day, in the years 1901 to 9999.
std::optional<Date> ParseDate(std::string_view text);

/// Writes "mm-dd-yyyy".
std::string FormatDate(const Date& date);

/// Whole days from start to end (end minus start; negative when end is earlier).
int DaysBetween(const Date& start, const Date& end);

/// Moves by whole months; where the month reached has no such day, its last day.
Date AddMonths(const Date& date, int months);

/// Moves by whole days.
Date AddDays(const Date& date, int days);

}  // namespace corvane
