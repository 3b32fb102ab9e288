#pragma once

#include "disclosure/DisclosureCheck.h"

namespace corvane {

// An account is entered in one go (regular), period by period (stepped) or tier by tier. Entries
// are numbered from 1. By method B the first tier has one entry and every later tier two, its low
// end and its high end.

/// How many entries the account has: 1, the number of periods, or n tiers and 2n - 1 tier ends.
int EntryCount(const DisclosureCheck& check);

/// The entry that the window stands at: the one after those that are completed.
int CurrentEntry(const DisclosureCheck& check);

/// The period or tier of the current entry.
int PeriodOrTier(const DisclosureCheck& check);

/// Whether the current entry completes the account, so that its results follow.
bool IsLastEntry(const DisclosureCheck& check);

/// The entry that Back leads to from the results: the next period while periods remain, else the
/// last entry, to be corrected and calculated again.
int EntryBehindResults(const DisclosureCheck& check);

/// The tier of an entry by method B, and the end of the tier that it verifies.
int TierOfEntry(int entry);
bool IsLowEnd(int entry);

/// What the fields show and which of them take typing when the window comes to stand at the
/// current entry. An entry that was left before comes back as it was typed, its numbers in their
/// formats; a new one takes from the one before it what usually stays the same.
DisclosureEntry PresentEntry(const DisclosureCheck& check);

/// Keeps an entry under the current number. Another number of stepped periods makes the entries
/// behind the first void.
void KeepEntry(DisclosureCheck& check, const DisclosureEntry& entry);

/// Whether Back has anything to keep of the current entry: of the first always, of a later one when
/// it was left before or something was typed that belongs to it alone.
bool IsWorthKeeping(const DisclosureCheck& check, const DisclosureEntry& entry);

/// Whether the dates and their calendars can be used while the term field holds this.
bool TermDatesEnabled(const DisclosureCheck& check, const Field& term);

}  // namespace corvane
