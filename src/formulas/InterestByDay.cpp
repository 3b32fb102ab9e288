#include "formulas/InterestByDay.h"

#include <algorithm>

#include "formulas/DayInterest.h"
#include "support/Rounding.h"

namespace corvane {

namespace {

/// Says on which days earlier interest earns interest: with compounding every N days, on the first
/// earning day after each N of them. Without compounding (N = 0) never.
class CompoundingCounter {
 public:
  explicit CompoundingCounter(int compoundingDays) : period_(compoundingDays) {}

  /// Takes the next earning day; true when the interest so far counts as balance on it.
  bool NextDayCompounds() {
    const bool compounds = period_ > 0 && days_ == period_;
    if (compounds) days_ = 0;
    ++days_;
    return compounds;
  }

 private:
  int period_;
  int days_ = 0;
};

PeriodInterest AverageBalanceInterest(const StatementAccount& account, double averageBalance,
                                      std::size_t days) {
  PeriodInterest period;
  period.ofDay.resize(days);
  if (averageBalance < account.minimumAdb) return period;
  const DayInterest earned(account);
  CompoundingCounter counter(account.compoundingDays);
  for (double& day : period.ofDay) {
    const double carried = counter.NextDayCompounds() ? period.total : 0;
    day = RoundIntermediate(earned.Of(averageBalance, carried, 0));
    period.total += day;
  }
  if (account.compoundingDays == 0) {
    // One product instead of a sum of rounded days.
    period.total = RoundIntermediate(earned.Of(averageBalance, 0, 0) * static_cast<double>(days));
  }
  return period;
}

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
    period.ofDay[day] = RoundIntermediate(earned.Of(balance, carried, rate));
    period.total += period.ofDay[day];
  }
  return period;
}

bool EarnsOnAverage(const StatementAccount& account) {
  return account.method == BalanceMethod::AverageDailyBalance &&
         account.kind != AccountKind::Stepped;
}

}  // namespace

double CountedBalance(double balance) {
  return std::max(balance, 0.0);
}

double AverageDailyBalance(const std::vector<double>& balances) {
  if (balances.empty()) return 0;
  double sum = 0;
  for (double balance : balances) sum += CountedBalance(balance);
  // The sum of whole cents is one too; what binary digits added could hide an exact half.
  return RoundToCents(RoundToCents(sum) / static_cast<double>(balances.size()));
}

StatementInterest InterestByDay(const StatementAccount& account,
                                const std::vector<double>& balances,
                                const std::vector<double>& rates) {
  StatementInterest result;
  result.averageBalance = AverageDailyBalance(balances);
  result.interest = EarnsOnAverage(account)
                        ? AverageBalanceInterest(account, result.averageBalance, balances.size())
                        : DailyBalanceInterest(account, balances, rates);
  return result;
}

}  // namespace corvane
