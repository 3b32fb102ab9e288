#include "statement/DailyBalances.h"

#include <algorithm>
#include <cmath>

#include "formulas/DayInterest.h"
#include "formulas/InterestByDay.h"

namespace corvane {

namespace {

std::optional<double> NumberIn(const std::string& text) {
  return IsNumeric(text) ? std::optional(NumericValue(text)) : std::nullopt;
}

double RuleRate(const DailyBalances& daily, const DayEntry& day) {
  return RateOfDay(daily.account, CountedBalance(day.balance.value_or(0)), day.rate.value_or(0));
}

std::vector<double> OfEachDay(const DailyBalances& daily, std::optional<double> DayEntry::*value) {
  std::vector<double> values;
  for (const DayEntry& day : daily.days) values.push_back((day.*value).value_or(0));
  return values;
}

double InterestHandedBack(const StatementAccount& account, const StatementInterest& computed) {
  const bool bothMinimums = account.minimumAdb > 0 && account.minimumDailyBalance > 0;
  const bool withheld = bothMinimums && account.method == BalanceMethod::DailyBalance;
  return withheld || computed.averageBalance == 0 ? 0 : computed.interest.total;
}

}  // namespace

DayTexts TextsOfDay(const DailyBalances& daily, std::size_t day) {
  const auto& [balance, rate] = daily.days.at(day);
  return {.balance = balance ? FormatFixed2(*balance) : "", .rate = rate ? FormatRate(*rate) : ""};
}

DayTexts EnterBalance(DailyBalances& daily, std::size_t day, const std::string& balance) {
  DayEntry& entry = daily.days.at(day);
  entry.balance = NumberIn(balance);
  if (!daily.TakesRates()) {
    entry.rate.reset();
    if (entry.balance.value_or(0) != 0) entry.rate = RuleRate(daily, entry);
  }
  return {.balance = RewriteFixed2(balance), .rate = TextsOfDay(daily, day).rate};
}

void TakeDay(DailyBalances& daily, std::size_t day, const DayTexts& row) {
  DayEntry& entry = daily.days.at(day);
  entry.balance = NumberIn(row.balance);
  entry.rate = daily.TakesRates() ? NumberIn(row.rate) : RuleRate(daily, entry);
}

void ClearDays(DailyBalances& daily) {
  daily.days.assign(daily.days.size(), {});
}

void FillRates(DailyBalances& daily) {
  if (daily.TakesRates()) return;
  for (DayEntry& day : daily.days) day.rate = RuleRate(daily, day);
}

std::variant<ComputedDays, Refusal> ComputeAdb(const DailyBalances& daily) {
  const StatementInterest computed = InterestByDay(
      daily.account, OfEachDay(daily, &DayEntry::balance), OfEachDay(daily, &DayEntry::rate));
  if (!std::isfinite(computed.averageBalance) || !std::isfinite(computed.interest.total)) {
    return RefusalOf(Failure::NotComputable);
  }
  ComputedDays days{.averageBalance = computed.averageBalance, .interest = {}};
  if (GivesInterest(daily.basis, daily.column)) {
    days.interest = InterestHandedBack(daily.account, computed);
  }
  return days;
}

DaySpan DaysOnPage(int page, std::size_t dayCount) {
  const std::size_t first = kDaysPerPage * static_cast<std::size_t>(page - 1);
  return {std::min(first, dayCount), std::min(first + kDaysPerPage, dayCount)};
}

bool HasNextPage(int page, std::size_t dayCount) {
  return DaysOnPage(page, dayCount).end < dayCount;
}

std::string MinimumAdbText(const StatementAccount& account) {
  return "Minimum Required ADB = " + FormatGroupedWhole(account.minimumAdb);
}

std::string MinimumDailyBalanceText(const StatementAccount& account) {
  return "Minimum Required Daily Balance = " + FormatGroupedWhole(account.minimumDailyBalance);
}

}  // namespace corvane
