#pragma once

#include "support/Dates.h"

namespace corvane {

// How many days a term has. "Counting the leap day" means that 29 February is a day like any
// other; otherwise it is left out wherever a term passes over it.

/// The number of 29 Februaries from start to end, both included; 0 when end is before start.
int CountLeapDays(const Date& start, const Date& end);

/// Days of a term between two dates: end minus start, less the 29 Februaries between them when
/// they do not count. Negative when end is before start.
int CalendarTermDays(const Date& start, const Date& end, bool countLeapDay);

/// CalendarTermDays from the first of a month to the first of the month so many months later.
int MonthTermDays(std::chrono::year_month begin, int months, bool countLeapDay);

/// Days of so many whole months from `start` on and past December. All months have their length in
/// the year of `start`, also those after a turn of the year. 0 for fewer than one month, infinite
/// for endless counts.
double MonthsInDays(std::chrono::year_month start, double months, bool countLeapDay);

/// MonthsInDays of `periods` periods of so many months each; fractions of a count are not counted.
double MonthPeriodDays(std::chrono::year_month start, double periods, double monthsPerPeriod,
                       bool countLeapDay);

/// The same year's month that lies so many months (0 or more) after the given one, going round
/// from December to January.
std::chrono::year_month MonthInSameYear(std::chrono::year_month month, int months);

}  // namespace corvane
