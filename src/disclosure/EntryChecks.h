#pragma once

#include <chrono>
#include <optional>

#include "account/Refusal.h"
#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// The checks of Calculate and Next in their order: the first that fails, or nothing. Only enabled
/// fields take part.
std::optional<Refusal> CheckEntry(const DisclosureCheck& check, const DisclosureEntry& entry);

/// The entry with what the checks write back: a valid beginning month gets two digits, and a term
/// that two dates give is counted once all checks pass.
DisclosureEntry Completed(const DisclosureCheck& check, DisclosureEntry entry);

/// What the number-of-periods field refuses on leaving it: a text that is no whole number from 2
/// to 10. An empty field is left alone.
std::optional<Refusal> CheckPeriodNumber(const Field& number);

/// Whether the rate field is disabled and blank, which only a defect of the program can cause.
bool IsRateMissing(const DisclosureEntry& entry);

/// Beginning month and year of an entry; not ok() where they name no month.
std::chrono::year_month BeginOf(const DisclosureEntry& entry);

}  // namespace corvane
