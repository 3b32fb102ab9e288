#pragma once

#include "account/EntryCheck.h"
#include "account/SessionRecord.h"
#include "statement/BalanceBasis.h"

namespace corvane {

/// What stood before "Compute ADB and Interest" was pressed, for a cancel to put back.
struct BeforeCompute {
  SessionRecord session;
  std::string interestText;
};

BeforeCompute Remember(const SessionRecord& session, const StatementEntry& entry);

/// "Compute ADB and Interest" of a column, up to the opening of the daily window: checks the
/// entries, stores them, the column and its days. A notice does not keep the window from opening.
CheckOutcome StartCompute(SessionRecord& session, StatementEntry& entry, BalanceColumn column);

/// The daily window handed back an average: shows it, and the interest unless it belongs to the
/// other column.
void FinishCompute(const SessionRecord& session, StatementEntry& entry, BalanceColumn column);

/// The daily window was closed without an average: everything is as before; ComputeFlag tells.
void CancelCompute(SessionRecord& session, StatementEntry& entry, const BeforeCompute& before);

}  // namespace corvane
