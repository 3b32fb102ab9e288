#include "formulas/AdbInterest.h"

#include "formulas/CompoundingCounter.h"
#include "formulas/DayInterest.h"
#include "formulas/RoundValue.h"

namespace corvane {

namespace {

void EarnDayByDay(const DayInterest& earned, double averageBalance, CompoundingCounter counter,
                  PeriodInterest& period) {
  for (double& day : period.ofDay) {
    const double carried = counter.NextDayCompounds() ? period.total : 0;
    day = RoundToDecimals(earned.Of(averageBalance, carried, 0), 15);
    period.total += day;
  }
}

}  // namespace

PeriodInterest AdbInterest(const StatementAccount& account, double averageBalance, int days) {
  PeriodInterest period;
  period.ofDay.resize(static_cast<std::size_t>(days));
  if (averageBalance < account.minimumAdb) return period;
  const DayInterest earned(account);
  EarnDayByDay(earned, averageBalance, CompoundingCounter(account.compoundingDays), period);
  if (account.compoundingDays == 0) {
    // One product instead of a sum of rounded days.
    period.total = RoundToDecimals(earned.Of(averageBalance, 0, 0) * days, 15);
  }
  return period;
}

}  // namespace corvane
