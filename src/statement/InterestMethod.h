#pragma once

#include "statement/StatementEntry.h"

namespace corvane {

/// Whether a single minimum also selects its method's option.
enum class MethodChoice { Keep, FollowMinimum };

/// Decides BalanceMethodCode: 2 (daily balance) for stepped accounts and with the additional APY
/// formula, which lock the method; otherwise a single minimum decides (an ADB gives 1, a daily
/// balance 2), and without or with both minimums the choice of the person. Enables the method
/// frame, and stores the two options as they then stand.
void Set_Interest(SessionRecord& session, StatementEntry& entry, MethodChoice choice);

/// What choosing "ADB" (true) or "Daily Balance" (false) does.
void ChooseMethod(SessionRecord& session, StatementEntry& entry, bool adb);

}  // namespace corvane
