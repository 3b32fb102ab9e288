#pragma once

#include <optional>

#include "account/Refusal.h"
#include "disclosure/DisclosureEntry.h"

namespace corvane {

struct SessionRecord;

/// The entry checks, in their order: the first that fails, or nothing. Only enabled fields take
/// part. A valid beginning month is written back with two digits.
std::optional<Refusal> CheckEntry(const SessionRecord& session, DisclosureEntry& entry);

/// The checks of a term that is counted between two dates, and the form of the daily rate factor.
/// When they pass, the counted term is written back into the term field.
std::optional<Refusal> CheckCalendarTerm(const SessionRecord& session, DisclosureEntry& entry);

/// What the number-of-periods field refuses on leaving it: a text that is no whole number from 2
/// to 10. An empty field is left alone.
std::optional<Refusal> CheckPeriodNumber(const SessionRecord& session, const std::string& text);

/// Whether the rate field is disabled and blank, which only a defect of the program can cause.
bool IsRateMissing(const DisclosureEntry& entry);

}  // namespace corvane
