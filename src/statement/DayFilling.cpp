#include "statement/DayFilling.h"

#include "formulas/DayInterest.h"
#include "formulas/InterestByDay.h"
#include "statement/DayTable.h"

namespace corvane {

namespace {

using Filled = std::variant<DailyBalances, Refusal>;

void PutDay(DailyBalances& daily, std::size_t day, const DayEntry& entry) {
  EnterBalance(daily, day, entry.balance);
  if (daily.TakesRates()) TakeDay(daily, day, entry);
}

/// Takes a line over; refuses a rate that is not the one the account gives.
std::optional<Refusal> PutLine(DailyBalances& daily, std::size_t day, const DayTable& table,
                               const DayLine& line) {
  const auto& [balance, rate] = line.day;
  const DayEntry before = daily.days.at(day);
  PutDay(daily, day,
         {table.hasBalances ? balance : before.balance, rate.empty() ? before.rate : rate});
  if (rate.empty() || daily.TakesRates()) return std::nullopt;
  const double given = RateOfDay(daily.account, CountedBalance(NumericValue(balance)), 0);
  if (NumericValue(rate) == given) return std::nullopt;
  return RefuseLine(line.number, "The rate of the account on " + DayLabel(daily, day) + " is " +
                                     FormatRate(given) + " %, not " + rate + " %.");
}

Filled FillInOrder(DailyBalances daily, std::size_t first, const DayTable& table) {
  const std::size_t room = daily.days.size() - first;
  if (table.lines.size() > room) {
    return RefuseTable(std::to_string(table.lines.size()) + " days do not fit: from " +
                       DayLabel(daily, first) + " on the period has " + std::to_string(room) + ".");
  }
  std::size_t day = first;
  for (const DayLine& line : table.lines) {
    if (const auto refusal = PutLine(daily, day++, table, line)) return *refusal;
  }
  return daily;
}

std::optional<Refusal> CheckDates(const DailyBalances& daily, const DayTable& table) {
  const Date last = AddDays(daily.start, static_cast<int>(daily.days.size()) - 1);
  Date before{};
  for (const DayLine& line : table.lines) {
    const std::string date = FormatDate(*line.date);
    if (*line.date < daily.start || *line.date > last) {
      return RefuseLine(line.number, date + " is no day of the period, which is " +
                                         FormatDate(daily.start) + " to " + FormatDate(last) + ".");
    }
    if (*line.date <= before) {
      return RefuseLine(line.number, date + " does not follow the date before it.");
    }
    before = *line.date;
  }
  return std::nullopt;
}

Filled FillByDate(DailyBalances daily, DayTable table) {
  if (const auto refusal = CheckDates(daily, table)) return *refusal;
  std::string rate;
  for (auto line = table.lines.begin(); line != table.lines.end(); ++line) {
    if (line->day.rate.empty()) line->day.rate = rate;
    rate = line->day.rate;
    const auto next = line + 1;
    const auto end = next == table.lines.end()
                         ? daily.days.size()
                         : static_cast<std::size_t>(DaysBetween(daily.start, *next->date));
    auto day = static_cast<std::size_t>(DaysBetween(daily.start, *line->date));
    for (; day < end; ++day) {
      if (const auto refusal = PutLine(daily, day, table, *line)) return *refusal;
    }
  }
  return daily;
}

Filled Fill(const DailyBalances& daily, std::size_t first,
            const std::variant<DayTable, Refusal>& read) {
  if (const auto* refusal = std::get_if<Refusal>(&read)) return *refusal;
  const auto& table = std::get<DayTable>(read);
  return table.hasDates ? FillByDate(daily, table) : FillInOrder(daily, first, table);
}

const std::string& Given(const std::string& text, const std::string& before) {
  return Trim(text).empty() ? before : text;
}

}  // namespace

Filled PasteDays(const DailyBalances& daily, const DayPlace& place, std::string_view copied) {
  Filled filled = Fill(daily, place.day, ReadCopiedTable(copied, place.isRate));
  if (auto* refusal = std::get_if<Refusal>(&filled)) refusal->field = FieldAt(place);
  return filled;
}

Filled LoadDays(const DailyBalances& daily, std::string_view csv) {
  DailyBalances emptied = daily;
  for (std::size_t day = 0; day < emptied.days.size(); ++day) EnterBalance(emptied, day, "");
  return Fill(emptied, 0, ReadCsvTable(csv));
}

DailyBalances CopyDayBefore(const DailyBalances& daily, std::size_t day) {
  DailyBalances copied = daily;
  if (day > 0) PutDay(copied, day, daily.days.at(day - 1));
  return copied;
}

DailyBalances CopyToEnd(const DailyBalances& daily, std::size_t day) {
  const DayEntry& own = daily.days.at(day);
  const DayEntry& before = daily.days.at(day > 0 ? day - 1 : day);
  const DayEntry given{Given(own.balance, before.balance), Given(own.rate, before.rate)};
  DailyBalances copied = daily;
  for (; day < copied.days.size(); ++day) PutDay(copied, day, given);
  return copied;
}

}  // namespace corvane
