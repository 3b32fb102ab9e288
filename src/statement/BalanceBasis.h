#pragma once

#include <string>

#include "statement/StatementEntry.h"

namespace corvane {

enum class BalanceColumn { Ledger, Collected };

/// The BalanceBasisCode of the two ledger/collected choices, stored with them: 1 both balances are
/// equal, 2 the ledger average is used, 3 the collected average is used.
void SetBalanceBasis(SessionRecord& session, const StatementEntry& entry);

/// The column whose average and days the APY is computed on: collected with basis 3, else ledger.
BalanceColumn BasisColumn(const SessionRecord& session);

/// Whether the basis uses a column: basis 2 takes the ledger column's average and the collected
/// column's interest.
bool BasisUses(const SessionRecord& session, BalanceColumn column);

// The fields of a column.
StatementField& DaysField(StatementEntry& entry, BalanceColumn column);
StatementField& AdbField(StatementEntry& entry, BalanceColumn column);
const StatementField& AdbField(const StatementEntry& entry, BalanceColumn column);

/// The days field that counts for a column: its own while it is enabled, else the ledger's.
const StatementField& DaysInUse(const StatementEntry& entry, BalanceColumn column);

// What choosing "Ledger = Collected" and "Ledger ADB" does to the two columns; the detail of an
// earlier computation ends.
void ChooseLedgerEqualsCollected(SessionRecord& session, StatementEntry& entry, bool yes);
void ChooseLedgerAdb(SessionRecord& session, StatementEntry& entry, bool yes);

}  // namespace corvane
