#include "reports/InterestReport.h"

#include "account/SessionRecord.h"
#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

TagList Tags(const SessionRecord& session, const InterestReportEntry& entry) {
  TagList tags = StatementTags(session, entry.optFormulaYes);
  tags.insert(tags.end(), {
                              {"^Rpt_Type^", {"", ""}},
                              {"^reporttype^", {session.LedgerBasis ? "Ledger" : "Collected", ""}},
                          });
  return tags;
}

/// "Jan 5"; empty for a day before the calendar begins.
std::string DayLabel(DateSerial serial) {
  static constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const auto date = DateOf(serial);
  if (!date) return "";
  return std::string(kMonths[static_cast<unsigned>(date->month()) - 1]) + " " +
         FormatWhole(static_cast<unsigned>(date->day()));
}

std::string PaddingCells() {
  return std::string(kPaddingCell).append(kPaddingCell).append(kPaddingCell);
}

std::string DayCells(const SessionRecord& session, int day) {
  const bool ledger = session.LedgerBasis;
  const auto& balances = ledger ? session.LedgerDayBalances : session.CollectedDayBalances;
  const auto& rates = ledger ? session.LedgerDayRates : session.CollectedDayRates;
  return PlainCell(DayLabel(session.PeriodStart + day - 1)) +
         PlainCell(FormatDollars(balances.At(day))) + PlainCell(FormatPlain(rates.At(day)) + "%");
}

std::vector<std::string> DayRows(const SessionRecord& session) {
  const auto columns = SplitDays(session.StatementDays);
  std::vector<std::string> rows;
  for (int k = 0; k < columns[0].last; ++k) {
    std::string row{kRowStart};
    for (const DayColumn& column : columns) {
      const int day = column.first + k;
      row += day <= column.last ? DayCells(session, day) : PaddingCells();
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

std::array<DayColumn, 3> SplitDays(int days) {
  const int rows = days / 3 + (days % 3 != 0 ? 1 : 0);
  const int secondEnds = days % 3 == 1 ? 2 * rows - 1 : 2 * rows;
  return {DayColumn{1, rows}, DayColumn{rows + 1, secondEnds}, DayColumn{secondEnds + 1, days}};
}

ReportContent InterestReport(const SessionRecord& session, const InterestReportEntry& entry) {
  return {ResolveFrom(Tags(session, entry)),
          [&session](std::string_view, int) { return DayRows(session); },
          {kRowMarker}};
}

}  // namespace corvane
