#include "reports/DisclosureReport.h"

#include <algorithm>

#include "account/SessionRecord.h"
#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

using Rows = std::vector<std::string>;

std::string CompoundingText(const SessionRecord& session) {
  if (session.CompoundYears) return "Years";
  if (session.CompoundMonths) return "Months";
  if (session.CompoundDays) return "Days";
  if (session.CompoundNone) return "None";
  return "";
}

std::string CompoundingTerm(const SessionRecord& session) {
  return session.CompoundNone ? "None" : FormatPlain(session.CompoundingDays);
}

std::string WithdrawalText(const SessionRecord& session) {
  if (session.ReqWdrwlDays) return "Days";
  if (session.ReqWdrwlMonths) return "Months";
  return "Not Required";
}

std::string LabelledLine(std::string_view label, double number) {
  return "<br><b>" + std::string(label) + "</b>" + FormatWhole(number);
}

/// The withdrawals stand at the end of the line with the days of the year: how many, and how far
/// apart where that was entered.
std::string WithdrawalLines(const DisclosureReportEntry& entry) {
  const double periods = NumericValue(entry.txtWdrwlPeriods);
  const double monthsBetween = NumericValue(entry.txtBtwnReqIntWdrwl);
  if (periods == 0) return "";
  std::string lines = LabelledLine("Required Interest Withdrawals: ", periods);
  if (monthsBetween != 0) {
    lines += LabelledLine("Months Between Req'd Interest Withdrawals: ", monthsBetween);
  }
  return lines + "<br>";
}

TagList Tags(const SessionRecord& session, const DisclosureReportEntry& entry) {
  TagList tags = CommonTags(session);
  for (auto& [tag, value] : tags) {
    if (tag == "^drf^") value.lineEnd = WithdrawalLines(entry);
  }
  tags.insert(tags.end(), {
                              {"^MainHeading^", {AccountTypeHeading(session), ""}},
                              {"^acctnum^", {EscapeHtml(session.AccountHolder), ""}},
                              {"^intcmpd^", {CompoundingText(session), ""}},
                              {"^intwd^", {WithdrawalText(session), ""}},
                              {"^cmpdterm^", {CompoundingTerm(session), ""}},
                              {"^PerTier^", {kLineNoHeading, ""}},
                          });
  return tags;
}

std::string Row(const std::string& cells) {
  return std::string(kRowStart).append(cells).append(kRowEnd);
}

std::string RegularRow(const SessionRecord& session, const DisclosureReportEntry& entry,
                       int lineNo) {
  const std::string& verdict = session.ApyVerdict;
  return Row(PlainCell(FormatWhole(lineNo)) + PlainCell(DollarText(entry.txtBal)) +
             PlainCell(FieldText(entry.txtIntRateA) + "%") + PlainCell(FieldText(entry.txtTerm)) +
             PlainCell(DollarText(session.ComputedInterest)) +
             PlainCell(FieldText(entry.txtDiscAPY) + "%") +
             PlainCell(FormatGrouped2(session.ComputedApy) + "%") +
             (IsOk(verdict) ? BlackCell(verdict) : RedCell(verdict)));
}

/// The seven cells of a stored row before its verdict.
std::string StoredCells(const SessionRecord& session, int row, const std::string& balanceCell) {
  return PlainCell(session.RptLineNo.At(row)) + balanceCell + PlainCell(session.RptRate.At(row)) +
         PlainCell(session.RptTerm.At(row)) + PlainCell(session.RptInterest.At(row)) +
         PlainCell(session.RptDisclosedApy.At(row)) + PlainCell(session.RptComputedApy.At(row));
}

/// Only the newest period has a verdict, and a period still to be entered has no figures at all.
std::string SteppedRow(const SessionRecord& session, int row) {
  const std::string balance = session.RptBalance.At(row);
  const std::string verdict = session.RptVerdict.At(row);
  std::string verdictCell{kEmptyCell};
  if (IsOk(verdict)) verdictCell = PlainCell(verdict);
  if (verdict == "APY VIOLATION") verdictCell = BoldRedCell(verdict);
  const std::string balanceCell = balance.empty() ? std::string(kEmptyCell) : PlainCell(balance);
  return Row(StoredCells(session, row, balanceCell) + verdictCell);
}

std::string TieredRow(const SessionRecord& session, int row) {
  return Row(StoredCells(session, row, PlainCell(session.RptBalance.At(row))) +
             BoldVerdictCell(session.RptVerdict.At(row)));
}

/// The period to be entered next shows as an unfilled row, but never one beyond the last.
int SteppedRowCount(const SessionRecord& session) {
  return std::min<int>(session.TierPeriodCounter + 1, session.TierPerNum);
}

template <class RowFunction>
Rows StoredRows(const SessionRecord& session, int count, RowFunction row) {
  Rows rows;
  for (int i = 1; i <= count; ++i) rows.push_back(row(session, i));
  return rows;
}

Rows RowsOf(const SessionRecord& session, const DisclosureReportEntry& entry, int markerLine) {
  if (session.AcctRegular) return {RegularRow(session, entry, markerLine)};
  if (session.AcctStepped) return StoredRows(session, SteppedRowCount(session), SteppedRow);
  if (session.AcctTierA) return StoredRows(session, session.TotalTiers, TieredRow);
  if (session.AcctTierB) return StoredRows(session, session.PeriodCount, TieredRow);
  return {};
}

}  // namespace

ReportContent DisclosureReport(const SessionRecord& session, const DisclosureReportEntry& entry) {
  return {ResolveFrom(Tags(session, entry)),
          [&session, entry](std::string_view, int markerLine) {
            return RowsOf(session, entry, markerLine);
          },
          {kRowMarker}};
}

}  // namespace corvane
