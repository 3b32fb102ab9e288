#pragma once

#include "account/EntryCheck.h"
#include "statement/StatementEntry.h"

namespace corvane {

/// The field checks of the period window, in their order; only enabled fields take part.
std::optional<Refusal> ValidateEntries(const StatementEntry& entry);

/// Everything that Compute ADB and Calculate check first: the minimum balances, the period (which
/// may fill the days), the method, the fields.
CheckOutcome CheckEntries(SessionRecord& session, StatementEntry& entry);

/// Stores minimums, disclosed APY, method and the start of the period from checked entries.
void StoreEntries(SessionRecord& session, const StatementEntry& entry);

/// A stepped account may not have a minimum ADB alone.
bool IsSteppedWithMinimumAdbOnly(const SessionRecord& session);

}  // namespace corvane
