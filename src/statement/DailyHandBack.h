#pragma once

#include "statement/DailyBalances.h"

namespace corvane {

/// "Print" of the daily window: the rates of all days are worked out and the column's days go into
/// the record's tables for the interest report.
void StoreDays(SessionRecord& session, DailyBalances& daily);

/// "Compute ADB": hands the average and the interest back through the record. With both minimums
/// the interest is that of the ADB method, and 0 where the daily balance method is in force; with
/// basis 2 the ledger column hands back its average only. The days become the report's detail.
/// Figures that are not finite are refused, and nothing is stored.
std::optional<Refusal> ComputeAdb(SessionRecord& session, DailyBalances& daily);

/// Whether Show Detail may show the stored days: the last Compute ADB handed them back for a
/// column of the basis, and its average and days still stand in the window.
bool DetailFits(const SessionRecord& session, const StatementEntry& entry);

}  // namespace corvane
