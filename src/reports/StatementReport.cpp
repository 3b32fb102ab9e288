#include "reports/StatementReport.h"

#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "reports/RuleText.h"
#include "statement/StatementNotes.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

std::string EnteredDate(const Field& date) {
  return ParseDate(date.text) ? date.text : "";
}

Tags TagsOf(const AccountHeader& header, const StatementCheck& check, const Date& today) {
  const BalanceColumn basis = BasisColumn(check.entry.basis);
  Tags tags = StatementTags(header, check, today);
  tags.insert({
      {"^Rpt_Type^", {AccountTypeHeading(check.setup.kind)}},
      {"^intwd^", {""}},
      {"^PerTier^", {kLineNoHeading}},
      {"^startdate^", {EnteredDate(check.entry.txtDateStart)}},
      {"^enddate^", {EnteredDate(check.entry.txtDateEnd)}},
      {"^days^", {FormatPlain(check.entry.Days(basis).Value())}},
      {"^basis^", {basis == BalanceColumn::Ledger ? "Ledger" : "Collected"}},
      {"^addperiod^", {CellText(check.setup.txtDCPeriod.text)}},
      {"^rule^", {StatementRule(check)}},
      {"^verdict^", {VerdictSentence(check.entry.txtDClApy.Value(), check.result->apy)}},
      {"^notes^", {NotesHtml(NotesOf(check))}},
  });
  return tags;
}

/// Stepped and tiered accounts have no one rate.
std::string RateText(const StatementCheck& check) {
  const bool hasOneRate = check.setup.kind == AccountKind::Regular;
  return hasOneRate ? CellText(check.entry.txtIntRate.text) + "%" : "variable";
}

std::string RowOfResult(const StatementCheck& check) {
  const StatementResult& result = check.result.value();
  return std::string(kRowStart) + PlainCell(RateText(check)) +
         PlainCell(CellText(check.setup.txtDCompounding.text)) +
         PlainCell(DollarText(check.entry.txtIntAmt.Value())) +
         PlainCell(CellText(check.entry.txtDClApy.text) + "%") +
         PlainCell(FormatGrouped2(result.apy) + "%") + BoldVerdictCell(result.verdict);
}

std::string DaysCell(const Field& days) {
  return days.Value() > 0 ? PlainCell(CellText(days.text)) : std::string(kEmptyCell);
}

std::string BalanceCell(const Field& balance) {
  return balance.Value() != 0 ? PlainCell(DollarText(balance.Value())) : std::string(kEmptyCell);
}

std::string RowOfBalances(const StatementEntry& entry) {
  return std::string(kRowStart) + DaysCell(entry.txtLedgerdays) +
         BalanceCell(entry.txtADBLedgerBalance) + DaysCell(entry.txtColDays) +
         BalanceCell(entry.txtADBCollectedBalance);
}

}  // namespace

ReportContent StatementReport(const AccountHeader& header, const StatementCheck& check,
                              const Date& today) {
  return {TagsOf(header, check, today),
          {SameRows(kRowMarker, {RowOfResult(check)}),
           SameRows(kSecondRowMarker, {RowOfBalances(check.entry)})}};
}

}  // namespace corvane
