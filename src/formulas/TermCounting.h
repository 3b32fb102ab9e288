#pragma once

#include <cstdint>

#include "support/Dates.h"

namespace corvane {

struct SessionRecord;

// How many days a term has. "Counting the leap day" means that 29 February is a day like any
// other; otherwise it is left out wherever a term passes over it.

/// True for the current year's, the date's or the numbered year's 29 February. A number that is
/// not a whole year from 100 to 9999 stands for the current year.
bool dhIsLeapYear();
bool dhIsLeapYear(const Date& date);
bool dhIsLeapYear(double year);

/// year x 100000 + month x 1000 + day of the year (1 to 366): compares as the dates do.
std::int32_t DateSortKey(const Date& date);

/// The number of 29 Februaries from start to end, both included; 0 when end is before start.
std::int16_t CountLeapDays(const Date& start, const Date& end);

/// Days of a month (28 to 31). Where month and year (100 to 9999) name no month, today's month is
/// taken.
int DaysInMonth(int month, int year, bool countLeapDay);

/// DaysInMonth in the session's BeginYear and by its CountLeapDay.
void DaysInMonth(const SessionRecord& session, std::int16_t month, double& days);

/// Days of `periods` periods of so many months each, from startMonth on and on past December. All
/// months have their length in the given year, also those after a turn of the year. 0 where
/// either count is below 1; fractions of a count are not counted. Infinite for endless counts.
double CountMonthPeriodDays(int startMonth, int year, double periods, double monthsPerPeriod,
                            bool countLeapDay);

/// CountMonthPeriodDays in the session's BeginYear and by its CountLeapDay, stored in
/// MonthPeriodDays.
void CountMonthPeriodDays(SessionRecord& session, std::int16_t startMonth, double periods,
                          double monthsPerPeriod);

/// The month (1 to 12) that lies so many months after the given one.
int MonthAfter(int month, int months);

/// Days of a term between two dates: end minus start, less the 29 Februaries between them when
/// they do not count. Negative when end is before start.
int CalendarTermDays(const Date& start, const Date& end, bool countLeapDay);

/// CalendarTermDays from the first of a month to the first of the month so many months later.
int MonthTermDays(int beginMonth, int beginYear, int months, bool countLeapDay);

}  // namespace corvane
