#pragma once

#include <cstdint>

#include "support/Dates.h"

namespace corvane {

/// The number of 29 Februaries from start to end, both included; 0 when end is before start.
std::int16_t CountLeapDays(const Date& start, const Date& end);

/// Days of a term between two dates: end minus start, less the 29 Februaries between them when
/// they do not count. Negative when end is before start.
int CalendarTermDays(const Date& start, const Date& end, bool countLeapDay);

}  // namespace corvane
