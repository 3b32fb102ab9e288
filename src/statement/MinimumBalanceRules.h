#pragma once

#include "account/EntryCheck.h"
#include "statement/StatementEntry.h"

namespace corvane {

/// Whether the minimum balances suit the account and the method chosen; readies BalanceMethodCode
/// and BalanceMethodSub. Both minimums together bring a notice and pass.
CheckOutcome Check_For_Errors(SessionRecord& session, const StatementEntry& entry);

}  // namespace corvane
