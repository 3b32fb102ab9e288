#pragma once

namespace corvane {

/// The program's one rounding: the value rounded to a number of decimals (0 to 15), an exact half
/// going to the even neighbour. A value within 1e-9, or a few units in its last place, of an exact
/// half counts as that half, so that binary noise never decides a cent (2.675 gives 2.68, 8.345
/// gives 8.34). Where a double holds no more digits than asked for, the value stays as it is.
double RoundToDecimals(double value, int decimals);

/// Currency rounded to cents, or a percentage to hundredths.
inline double RoundToCents(double value) {
  return RoundToDecimals(value, 2);
}

/// The precision of intermediate values: daily rates, period interest and running totals.
inline double RoundIntermediate(double value) {
  return RoundToDecimals(value, 15);
}

}  // namespace corvane
