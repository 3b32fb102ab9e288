#include "statement/DailyBalances.h"

#include <algorithm>

#include "account/TierTable.h"
#include "formulas/AnnualYield.h"
#include "formulas/DayInterest.h"

namespace corvane {

namespace {

std::string RewriteRate(const std::string& text) {
  return IsNumeric(text) ? FormatRate(NumericValue(text)) : text;
}

std::string RuleRate(const DailyBalances& daily, const DayEntry& day) {
  return FormatRate(RateOfDay(daily.account, CountedBalance(NumericValue(day.balance)), 0));
}

bool IsNoNumber(const std::string& text) {
  return !Trim(text).empty() && !IsNumeric(text);
}

Refusal RefusalOfDay(const DailyBalances& daily, std::size_t day, const std::string& what,
                     const char* fields) {
  return {"Please enter a valid " + what + " for " + DayLabel(daily, day) + ".",
          ElementName(fields, static_cast<int>(day % kDaysPerPage))};
}

std::vector<double> OfEachDay(const DailyBalances& daily, std::string DayEntry::*text) {
  std::vector<double> values;
  for (const DayEntry& day : daily.days) values.push_back(NumericValue(day.*text));
  return values;
}

double InterestHandedBack(const StatementAccount& account, const StatementInterest& computed) {
  const bool bothMinimums = account.minimumAdb > 0 && account.minimumDailyBalance > 0;
  const bool withheld = bothMinimums && account.method == BalanceMethod::DailyBalance;
  return withheld || computed.averageBalance == 0 ? 0 : computed.interest.total;
}

}  // namespace

std::string DayLabel(const DailyBalances& daily, std::size_t day) {
  return FormatMonthDay(AddDays(daily.start, static_cast<int>(day)));
}

void EnterBalance(DailyBalances& daily, std::size_t day, const std::string& balance) {
  DayEntry& entry = daily.days.at(day);
  entry.balance = RewriteFixed2(balance);
  if (daily.TakesRates()) return;
  entry.rate = NumericValue(balance) == 0 ? "" : RuleRate(daily, entry);
}

void TakeDay(DailyBalances& daily, std::size_t day, const DayEntry& row) {
  DayEntry& entry = daily.days.at(day);
  entry.balance = RewriteFixed2(row.balance);
  entry.rate = daily.TakesRates() ? RewriteRate(row.rate) : RuleRate(daily, entry);
}

std::optional<Refusal> CheckPage(const DailyBalances& daily, int page) {
  const DaySpan span = DaysOnPage(page, daily.days.size());
  for (std::size_t day = span.first; day < span.end; ++day) {
    const auto& [balance, rate] = daily.days[day];
    if (IsNoNumber(balance)) return RefusalOfDay(daily, day, "balance", "txtDayBal");
    const bool noRate = IsNoNumber(rate) || NumericValue(rate) < 0;
    if (daily.TakesRates() && noRate) return RefusalOfDay(daily, day, "rate", "txtRate");
  }
  return std::nullopt;
}

void ClearDays(DailyBalances& daily) {
  daily.days.assign(daily.days.size(), {});
}

void FillRates(DailyBalances& daily) {
  if (daily.TakesRates()) return;
  for (DayEntry& day : daily.days) day.rate = RuleRate(daily, day);
}

std::optional<std::string> EmptyDaysQuestion(const DailyBalances& daily) {
  const auto empty = std::ranges::count_if(
      daily.days, [](const DayEntry& day) { return Trim(day.balance).empty(); });
  if (empty == 0) return std::nullopt;
  return std::to_string(empty) + " of " + std::to_string(daily.days.size()) +
         " days have no balance and count as 0. Compute the average all the same?";
}

StatementInterest InterestOf(const DailyBalances& daily) {
  return InterestByDay(daily.account, OfEachDay(daily, &DayEntry::balance),
                       OfEachDay(daily, &DayEntry::rate));
}

std::variant<ComputedDays, Refusal> ComputeAdb(const DailyBalances& daily) {
  const StatementInterest computed = InterestOf(daily);
  if (!IsAmount(computed.averageBalance) || !IsAmount(computed.interest.total)) {
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
