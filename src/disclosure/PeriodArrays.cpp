#include "disclosure/PeriodArrays.h"

#include "account/SessionRecord.h"

namespace corvane {

void SizePeriodArrays(SessionRecord& session) {
  const int last = session.AcctTierB && session.TierCountSel > 5 ? 20 : 10;
  for (auto* table : {&session.PerPeriodNo, &session.PerBeginMonth, &session.PerBeginYear}) {
    table->Resize(1, last);
  }
  for (auto* table : {&session.PerBalance, &session.PerRate, &session.PerDiscApy, &session.PerTerm,
                      &session.PerWdrwlPeriods, &session.PerBtwnReqIntWdrwl, &session.PerStartDate,
                      &session.PerEndDate}) {
    table->Resize(1, last);
  }
  session.PerDailyRateFactor.Resize(1, last);
}

}  // namespace corvane
