#pragma once

namespace corvane {

struct SessionRecord;

/// Gives all per-period tables of the session the indexes 1 to 10, or 1 to 20 for an account
/// tiered by method B with more than 5 tiers, whose later tiers are entered twice. What they held
/// is discarded.
void SizePeriodArrays(SessionRecord& session);

}  // namespace corvane
