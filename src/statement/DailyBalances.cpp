#include "statement/DailyBalances.h"

#include <algorithm>
#include <cmath>

#include "account/TierTable.h"
#include "formulas/AnnualYield.h"
#include "formulas/DayInterest.h"

namespace corvane {

namespace {

std::string RewriteRate(const std::string& text) {
  const auto number = NumberOf(text);
  return number ? FormatRate(*number) : text;
}

std::string RuleRate(const DailyBalances& daily, const DayEntry& day) {
  return FormatRate(RateOfDay(daily.account, CountedBalance(NumericValue(day.balance)), 0));
}

bool IsNoNumber(const std::string& text) {
  return !Trim(text).empty() && !IsNumeric(text);
}

Refusal RefusalOfDay(const DailyBalances& daily, const DayPlace& place) {
  const char* what = place.isRate ? "rate" : "balance";
  return {std::string("Please enter a valid ") + what + " for " + DayLabel(daily, place.day) + ".",
          FieldAt(place)};
}

bool HasBalance(const DayEntry& day) {
  return !Trim(day.balance).empty();
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

/// The sum of amounts in whole cents, so that the errors of many do not add up.
double SumOfCents(const std::vector<double>& amounts) {
  constexpr long double kCents = 100;
  long double sum = 0;
  for (const double amount : amounts) sum += std::round(amount * kCents);
  return static_cast<double>(sum / kCents);
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
    if (IsNoNumber(balance)) return RefusalOfDay(daily, {day});
    const auto isNoRate = [](const std::string& text) {
      return IsNoNumber(text) || NumericValue(text) < 0;
    };
    if (daily.TakesRates() && isNoRate(rate)) return RefusalOfDay(daily, {day, true});
  }
  return std::nullopt;
}

DailyBalances ClearDays(DailyBalances daily) {
  daily.days.assign(daily.days.size(), {});
  return daily;
}

void FillRates(DailyBalances& daily) {
  if (daily.TakesRates()) return;
  for (DayEntry& day : daily.days) day.rate = RuleRate(daily, day);
}

DaysSummary Summarize(const DailyBalances& daily) {
  std::vector<double> balances;
  for (const DayEntry& day : daily.days) {
    if (HasBalance(day)) balances.push_back(CountedBalance(NumericValue(day.balance)));
  }
  return {.entered = balances.size(),
          .sum = SumOfCents(balances),
          .average = AverageDailyBalance(balances)};
}

std::string SummaryText(const DailyBalances& daily) {
  const auto [entered, sum, average] = Summarize(daily);
  const std::size_t days = daily.days.size();
  std::string text = std::to_string(entered) + " of " + std::to_string(days) + " days entered, " +
                     std::to_string(days - entered) + " empty";
  if (entered == 0) return text;
  return text + " \u00b7 Sum " + FormatGrouped2(sum) + " \u00b7 Average so far " +
         FormatGrouped2(average);
}

std::optional<std::string> EmptyDaysQuestion(const DailyBalances& daily) {
  const std::size_t empty = daily.days.size() - Summarize(daily).entered;
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

int PageOf(std::size_t day) {
  return static_cast<int>(day / kDaysPerPage) + 1;
}

std::string FieldAt(const DayPlace& place) {
  return ElementName(place.isRate ? "txtRate" : "txtDayBal",
                     static_cast<int>(place.day % kDaysPerPage));
}

const char* ColumnName(BalanceColumn column) {
  return column == BalanceColumn::Ledger ? "Ledger" : "Collected";
}

std::string MinimumAdbText(const StatementAccount& account) {
  return "Minimum Required ADB = " + FormatGroupedWhole(account.minimumAdb);
}

std::string MinimumDailyBalanceText(const StatementAccount& account) {
  return "Minimum Required Daily Balance = " + FormatGroupedWhole(account.minimumDailyBalance);
}

}  // namespace corvane
