#include "reports/StatementReport.h"

#include "account/SessionRecord.h"
#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

TagList Tags(const SessionRecord& session, const StatementReportEntry& entry) {
  TagList tags = StatementTags(session, entry.optFormulaYes);
  tags.insert(tags.end(), {
                              {"^Rpt_Type^", {AccountTypeHeading(session), ""}},
                              {"^minadb^", {DollarText(entry.txtMinADB), ""}},
                              {"^mindbal^", {DollarText(entry.txtMinDBal), ""}},
                              {"^intwd^", {"", ""}},
                              {"^PerTier^", {kLineNoHeading, ""}},
                          });
  return tags;
}

/// Stepped and tiered accounts have no one rate.
std::string RateText(const SessionRecord& session, const StatementReportEntry& entry) {
  const bool variable = session.AcctStepped || session.AcctTierA || session.AcctTierB;
  return variable ? "variable" : FieldText(entry.txtIntRate) + "%";
}

std::string ResultRow(const SessionRecord& session, const StatementReportEntry& entry) {
  return std::string(kRowStart) + PlainCell(RateText(session, entry)) +
         PlainCell(FieldText(entry.txtDCompounding)) + PlainCell(DollarText(entry.txtIntAmt)) +
         PlainCell(FieldText(entry.txtDClApy) + "%") +
         PlainCell(FormatGrouped2(session.ComputedApy) + "%") + BoldVerdictCell(session.ApyVerdict);
}

std::string DaysCell(const std::string& days) {
  return NumericValue(days) > 0 ? PlainCell(FieldText(days)) : std::string(kEmptyCell);
}

std::string BalanceCell(const std::string& balance) {
  return NumericValue(balance) != 0 ? PlainCell(DollarText(balance)) : std::string(kEmptyCell);
}

std::string BalancesRow(const StatementReportEntry& entry) {
  return std::string(kRowStart) + DaysCell(entry.txtLedgerdays) +
         BalanceCell(entry.txtADBLedgerBalance) + DaysCell(entry.txtColDays) +
         BalanceCell(entry.txtADBCollectedBalance);
}

}  // namespace

ReportContent StatementReport(const SessionRecord& session, const StatementReportEntry& entry) {
  return {ResolveFrom(Tags(session, entry)),
          [&session, entry](std::string_view marker, int) -> std::vector<std::string> {
            if (marker == kSecondRowMarker) return {BalancesRow(entry)};
            return {ResultRow(session, entry)};
          },
          {kRowMarker, kSecondRowMarker}};
}

}  // namespace corvane
