#include "formulas/InterestByDay.h"

#include "formulas/AdbInterest.h"
#include "formulas/AverageDailyBalance.h"
#include "formulas/CompoundingCounter.h"
#include "formulas/DayInterest.h"
#include "formulas/RoundValue.h"

namespace corvane {

namespace {

/// Daily balance method: each day earns on its own balance, and a day below the minimum daily
/// balance neither earns nor counts towards a compounding period.
PeriodInterest DailyBalanceInterest(const StatementAccount& account,
                                    const std::vector<double>& balances,
                                    const std::vector<double>& rates) {
  const DayInterest earned(account);
  CompoundingCounter counter(account.compoundingDays);
  PeriodInterest period;
  period.ofDay.resize(balances.size());
  for (std::size_t day = 0; day < balances.size(); ++day) {
    const double balance = CountedBalance(balances[day]);
    if (balance < account.minimumDailyBalance) continue;
    const double carried = counter.NextDayCompounds() ? period.total : 0;
    const double rate = day < rates.size() ? rates[day] : 0;
    period.ofDay[day] = RoundToDecimals(earned.Of(balance, carried, rate), 15);
    period.total += period.ofDay[day];
  }
  return period;
}

bool EarnsOnAverage(const StatementAccount& account) {
  return account.method == BalanceMethod::AverageDailyBalance && account.kind != RateKind::Stepped;
}

}  // namespace

StatementInterest InterestByDay(const StatementAccount& account,
                                const std::vector<double>& balances,
                                const std::vector<double>& rates) {
  StatementInterest result;
  result.averageBalance = AverageDailyBalance(balances);
  result.interest = EarnsOnAverage(account) ? AdbInterest(account, result.averageBalance,
                                                          static_cast<int>(balances.size()))
                                            : DailyBalanceInterest(account, balances, rates);
  return result;
}

}  // namespace corvane
