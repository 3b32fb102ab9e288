#include <cmath>

#include "Typist.h"
#include "formulas/AnnualYield.h"
#include "statement/StatementCheck.h"

using namespace corvane;

namespace {

constexpr Date kToday{std::chrono::year(2024), std::chrono::month(1), std::chrono::day(31)};

void EnterDays(StatementCheck& check, FuzzedDataProvider& input) {
  const StatementCheck before = check;
  const auto column = input.ConsumeBool() ? BalanceColumn::Ledger : BalanceColumn::Collected;
  if (!BasisUses(check.entry.basis, column) || StartCompute(check, column).refusal) return;
  DailyBalances daily = DaysOf(check, column, kToday);
  DEMAND(daily.days.size() >= 1 && daily.days.size() <= kLongestPeriod);
  for (int act = input.ConsumeIntegralInRange(0, 9); act > 0; --act) {
    const auto day = input.ConsumeIntegralInRange<std::size_t>(0, daily.days.size() - 1);
    EnterBalance(daily, day, TypedText(input));
    if (daily.TakesRates()) TakeDay(daily, day, {daily.days[day].balance, TypedText(input)});
  }
  for (int page = 1; page <= 3; ++page) {
    if (CheckPage(daily, page)) return;
  }
  const auto computed = ComputeAdb(daily);
  if (const auto* days = std::get_if<ComputedDays>(&computed)) {
    DEMAND(IsAmount(days->averageBalance) && days->averageBalance >= 0);
    DEMAND(!days->interest || std::isfinite(*days->interest));
    FinishCompute(check, daily, *days);
  } else {
    check = CancelledCompute(before, daily);
  }
}

void Act(StatementCheck& check, FuzzedDataProvider& input) {
  const int act = input.ConsumeIntegralInRange(0, 9);
  if (act < 7) {
    ActOn(check.entry, input);
    FollowChanges(check);
  } else if (act == 7) {
    EnterDays(check, input);
  } else if (act == 8) {
    CountPeriod(check.setup.year, check.entry, PeriodCaller::Button);
  } else {
    const bool refused = CalculateStatement(check).refusal.has_value();
    DEMAND(refused != check.result.has_value());
    if (check.result) DEMAND(IsApy(check.result->apy) && IsAmount(check.result->interest));
    if (const InterestDetail* detail = DetailOf(check)) DEMAND(!detail->daily.days.empty());
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  StatementSetup setup = StatementSetupAtStart();
  for (int act = input.ConsumeIntegralInRange(0, 6); act > 0; --act) ActOn(setup, input);
  StatementCheck check;
  if (ContinueSetup(check, setup).refusal) return 0;
  if (IsTiered(setup.kind)) {
    check.tiers = TypedTiers(input);
    if (CheckTierTable(check.tiers)) return 0;
  }
  check.entry = PresentEntry(check.setup, check.entry);
  while (input.remaining_bytes() > 0) Act(check, input);
  return 0;
}
