#include "account/SessionStart.h"

#include "account/SessionRecord.h"

namespace corvane {

void PrepareSession(SessionRecord& session) {
  session.RoundingDigits = 15;
  session.TruncationDigits = 15;
  ClearTierTables(session);
}

void ClearTierTables(SessionRecord& session) {
  session.TierRate.Clear();
  session.TierNotExceeding.Clear();
  session.TierAbove.Clear();
}

void StartWorkflow(SessionRecord& session, std::int16_t statementPath) {
  session.StatementPath = statementPath;
  session.TierFormLoaded = false;
  ClearTierTables(session);
}

}  // namespace corvane
