#pragma once

#include <cstdint>

namespace corvane {

struct SessionRecord;

/// The value rounded to a number of decimals (0 to 15), an exact half going to the even neighbour.
/// A value within 1e-9 of an exact half counts as that half, so that binary noise never decides a
/// cent (2.675 gives 2.68, 8.345 gives 8.34). Where a double holds no more digits than asked for,
/// the value stays as it is.
double RoundToDecimals(double value, int decimals);

/// The program's one rounding function: rounds `value` in place and returns it. Mode 0 rounds to
/// the session's RoundingDigits (15), for daily rates, period interest and running totals; mode 2
/// rounds to 2 decimals, for stored interest and APY; any other mode rounds to a whole number.
double RoundValue(const SessionRecord& session, double& value, std::int16_t mode);

}  // namespace corvane
