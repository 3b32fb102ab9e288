#pragma once

#include <optional>

#include "account/Refusal.h"
#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// The checks of Calculate and Next in their order: the first that fails, or nothing. Only enabled
/// fields take part.
std::optional<Refusal> CheckEntry(const DisclosureCheck& check, const DisclosureEntry& entry);

/// Writes back into the entry what the checks do: a valid beginning month gets two digits, and a
/// term that two dates give is counted once all checks pass.
void Complete(const DisclosureSetup& setup, DisclosureEntry& entry, bool passes);

/// What the number-of-periods field refuses on leaving it: a text that is no whole number from 2
/// to 10. An empty field is left alone.
std::optional<Refusal> CheckPeriodNumber(const Field& number);

/// Whether the rate field is disabled and blank, which only a defect of the program can cause.
bool IsRateMissing(const DisclosureEntry& entry);
}  // namespace corvane
