#include "disclosure/ReportRows.h"

#include "account/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {

void SizeReportRows(SessionRecord& session, int count) {
  for (auto* table : {&session.RptLineNo, &session.RptBalance, &session.RptRate, &session.RptTerm,
                      &session.RptInterest, &session.RptDisclosedApy, &session.RptComputedApy,
                      &session.RptVerdict}) {
    table->Resize(1, count);
  }
}

void StoreReportRow(SessionRecord& session, int row, const ReportRow& cells) {
  session.RptLineNo.Set(row, cells.number);
  session.RptBalance.Set(row, cells.balance);
  session.RptRate.Set(row, cells.rate);
  session.RptTerm.Set(row, cells.term);
  session.RptInterest.Set(row, cells.interest);
  session.RptDisclosedApy.Set(row, cells.disclosedApy);
  session.RptComputedApy.Set(row, cells.computedApy);
  session.RptVerdict.Set(row, cells.verdict);
}

std::string MoneyCell(double amount) {
  return "$" + FormatGrouped2(amount);
}

std::string PercentCell(double percent) {
  return FormatRate(percent) + "%";
}

}  // namespace corvane
