#pragma once

#include <optional>

#include "account/Refusal.h"
#include "disclosure/DisclosureEntry.h"

namespace corvane {

struct SessionRecord;

/// What came of an attempt: a refusal, or results to show, or neither when further tiers have to
/// be entered first.
struct AttemptOutcome {
  std::optional<Refusal> refusal;
  bool showsResults = false;
};

/// One attempt of Calculate or Next: takes a count, runs the entry and calendar checks, stores the
/// entry at that count and computes. A regular account is computed at once, a stepped one after
/// every period, a tiered one after its last tier. The entry comes back with what the checks write
/// into its fields (the two-digit month, the counted term). A refusal leaves PeriodCount as it was.
AttemptOutcome AttemptCalculation(SessionRecord& session, DisclosureEntry& entry);

}  // namespace corvane
