#include "reports/InterestReport.h"

#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "reports/RuleText.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

/// What a row of three days has room in.
constexpr std::size_t kRowLength = 256;

void AddDayCells(std::string& row, const DailyBalances& daily, std::size_t day) {
  const DayEntry& entry = daily.days.at(day);
  AddPlainCell(row, DayLabel(daily, day));
  AddPlainCell(row, FormatDollars(NumericValue(entry.balance)));
  AddPlainCell(row, FormatPlain(NumericValue(entry.rate)) + "%");
}

Rows DayRows(const DailyBalances& daily) {
  const auto columns = SplitDays(daily.days.size());
  Rows rows;
  for (std::size_t k = 0; k < columns[0].end; ++k) {
    std::string row{kRowStart};
    row.reserve(kRowLength);
    for (const DaySpan& column : columns) {
      const std::size_t day = column.first + k;
      if (day < column.end) {
        AddDayCells(row, daily, day);
      } else {
        row.append(kPaddingCell).append(kPaddingCell).append(kPaddingCell);
      }
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

int LastDay(const DailyBalances& daily) {
  return static_cast<int>(daily.days.size()) - 1;
}

/// Date and interest of every day, three days to a row as in the rows of the balances.
std::string InterestOfDaysHtml(const DailyBalances& daily, const PeriodInterest& interest) {
  const auto columns = SplitDays(daily.days.size());
  Rows rows;
  for (std::size_t k = 0; k < columns[0].end; ++k) {
    std::string& cells = rows.emplace_back();
    cells.reserve(kRowLength);
    for (const DaySpan& column : columns) {
      const std::size_t day = column.first + k;
      const bool isDay = day < column.end;
      AddTableCell(cells, isDay ? FormatDate(AddDays(daily.start, static_cast<int>(day))) : "");
      AddTableCell(cells, isDay ? FormatGrouped6(interest.ofDay[day]) : "");
    }
  }
  return TableHtml("Interest of Each Day",
                   {"Day", "Interest Earned", "Day", "Interest Earned", "Day", "Interest Earned"},
                   rows);
}

}  // namespace

std::array<DaySpan, 3> SplitDays(std::size_t dayCount) {
  const std::size_t rows = (dayCount + 2) / 3;
  const std::size_t secondEnds = dayCount % 3 == 1 ? 2 * rows - 1 : 2 * rows;
  return {DaySpan{0, rows}, DaySpan{rows, secondEnds}, DaySpan{secondEnds, dayCount}};
}

ReportContent InterestReport(const AccountHeader& header, const StatementCheck& check,
                             const DailyBalances& daily, const Date& today) {
  Tags tags = StatementTags(header, check, today);
  const StatementInterest earned = InterestOf(daily);
  tags.insert({
      {"^startdate^", {FormatDate(daily.start)}},
      {"^enddate^", {FormatDate(AddDays(daily.start, LastDay(daily)))}},
      {"^days^", {std::to_string(daily.days.size())}},
      {"^adb^", {DollarText(earned.averageBalance)}},
      {"^interest^", {"$" + FormatGrouped6(earned.interest.total)}},
      {"^rule^", {InterestRule(daily.account)}},
  });
  tags["^interestofdays^"].text = InterestOfDaysHtml(daily, earned.interest);
  tags["^Rpt_Type^"] = {""};
  tags["^reporttype^"] = {daily.column == BalanceColumn::Ledger ? "Ledger" : "Collected"};
  ReportContent content{std::move(tags), {}};
  content.rows.push_back(SameRows(kRowMarker, DayRows(daily)));
  return content;
}

}  // namespace corvane
