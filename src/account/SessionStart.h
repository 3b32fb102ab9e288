#pragma once

#include <cstdint>

namespace corvane {

struct SessionRecord;

/// What the main menu sets whenever it loads: the precision of intermediate values and empty tier
/// tables.
void PrepareSession(SessionRecord& session);

/// Sets the rates and balance bounds of all tiers to 0.
void ClearTierTables(SessionRecord& session);

/// What choosing a workflow on the main menu sets: 0 disclosures and advertisements, 1 periodic
/// statements.
void StartWorkflow(SessionRecord& session, std::int16_t statementPath);

}  // namespace corvane
