#include "statement/StatementReset.h"

#include "account/SessionRecord.h"

namespace corvane {

void ClearDayTables(SessionRecord& session) {
  for (auto* table : {&session.LedgerDayBalances, &session.LedgerDayRates,
                      &session.CollectedDayBalances, &session.CollectedDayRates}) {
    table->Resize(1, 0);
  }
  session.LedgerDaysEntered = false;
  session.CollectedDaysEntered = false;
  session.DetailData = false;
}

void ResetStatement(SessionRecord& session) {
  ClearDayTables(session);
  session.NewStatementAcct = true;
  session.DailyBalReset = true;
  session.UseAdb = true;
  session.UseDailyBal = false;
  session.StatementDays = 0;
  session.PeriodStart = 0;
  session.CurrentDay = 0;
  session.AdbComputed = 0;
  session.ComputedAdb = 0;
  session.InterestAmount = 0;
  session.DailyRateFactor.clear();
  session.TierFormLoaded = false;
  session.EntryDataKept = false;
}

void StartStatements(SessionRecord& session) {
  ResetStatement(session);
  session.UseAdb = false;
}

}  // namespace corvane
