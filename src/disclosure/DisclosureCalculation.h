#pragma once

#include <optional>

#include "disclosure/DisclosureEntry.h"
#include "support/Refusal.h"

namespace corvane {

struct SessionRecord;

/// One attempt of Calculate or Next: takes a count, runs the entry and calendar checks, stores the
/// entry at that count and computes. The entry comes back with what the checks write into its
/// fields (the two-digit month, the counted term). A refusal leaves PeriodCount as it was.
std::optional<Refusal> AttemptCalculation(SessionRecord& session, DisclosureEntry& entry);

}  // namespace corvane
