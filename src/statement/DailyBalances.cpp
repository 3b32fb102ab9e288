#include "statement/DailyBalances.h"

#include "account/SessionRecord.h"
#include "formulas/AverageDailyBalance.h"
#include "formulas/DayRate.h"
#include "statement/StatementReset.h"

namespace corvane {

namespace {

std::optional<double> NumberIn(const std::string& text) {
  if (!IsNumeric(text)) return std::nullopt;
  return NumericValue(text);
}

double RuleRate(const DailyBalances& daily, const DayEntry& day) {
  return RateOfDay(daily.account, CountedBalance(day.balance.value_or(0)), day.rate.value_or(0));
}

std::vector<DayEntry> StoredDays(const SessionRecord& session, BalanceColumn column) {
  const bool ledger = column == BalanceColumn::Ledger;
  const auto& balances = ledger ? session.LedgerDayBalances : session.CollectedDayBalances;
  const auto& rates = ledger ? session.LedgerDayRates : session.CollectedDayRates;
  std::vector<DayEntry> days;
  for (int day = 1; day <= balances.Last(); ++day) {
    days.push_back({.balance = balances.At(day), .rate = rates.At(day)});
  }
  return days;
}

/// The days of a new account's window are empty, whatever the record still holds.
void ForgetEarlierAccount(SessionRecord& session) {
  if (session.DailyBalReset) ClearDayTables(session);
  session.DailyBalReset = false;
}

template <class Pick>
std::vector<double> EachDay(const DailyBalances& daily, Pick pick) {
  std::vector<double> values;
  for (const DayEntry& day : daily.days) values.push_back(pick(day).value_or(0));
  return values;
}

}  // namespace

std::optional<Refusal> LoadDailyBalances(SessionRecord& session, double interestRate,
                                         DailyBalances& daily) {
  session.ComputeFlag = false;
  if (session.StatementDays < 1) {
    return Refusal{.text = "Enter valid number of days", .field = {}};
  }
  ForgetEarlierAccount(session);
  const auto count = static_cast<std::size_t>(session.StatementDays);
  const BalanceColumn column =
      session.LedgerBasis ? BalanceColumn::Ledger : BalanceColumn::Collected;
  daily = {.account = AccountOf(session, interestRate),
           .column = column,
           .days = StoredDays(session, column),
           .interest = {}};
  if (daily.days.size() != count) {
    daily.days.assign(count, {});
    session.DetailData = false;
    return std::nullopt;
  }
  FillRates(daily);
  return std::nullopt;
}

DayTexts TextsOfDay(const DailyBalances& daily, std::size_t day) {
  const DayEntry& entry = daily.days.at(day);
  return {.balance = entry.balance ? FormatFixed2(*entry.balance) : std::string{},
          .rate = entry.rate ? FormatRate(*entry.rate) : std::string{}};
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
  daily.interest.clear();
}

void FillRates(DailyBalances& daily) {
  if (daily.TakesRates()) return;
  for (DayEntry& day : daily.days) day.rate = RuleRate(daily, day);
}

std::vector<double> BalancesOf(const DailyBalances& daily) {
  return EachDay(daily, [](const DayEntry& day) { return day.balance; });
}

std::vector<double> RatesOf(const DailyBalances& daily) {
  return EachDay(daily, [](const DayEntry& day) { return day.rate; });
}

}  // namespace corvane
