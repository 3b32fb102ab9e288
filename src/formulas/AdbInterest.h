#pragma once

#include "formulas/InterestByDay.h"

namespace corvane {

/// The interest of a period under the average daily balance method: nothing when the average is
/// below the minimum ADB; else the average's daily interest times the days, or, with compounding
/// every N days, what the average earns day by day. Regular and tiered accounts.
PeriodInterest AdbInterest(const StatementAccount& account, double averageBalance, int days);

}  // namespace corvane
