#pragma once

#include "disclosure/DisclosureEntry.h"
#include "formulas/TierSums.h"

namespace corvane {

struct SessionRecord;

// An account is entered in one go (regular), period by period (stepped) or tier by tier. Entries
// are numbered from 1. By method B the first tier has one entry and every later tier two, its low
// end and its high end.

/// How many entries the account has: 1, the number of periods, or n tiers and 2n - 1 tier ends.
int EntryCount(const SessionRecord& session);

/// The entry that the window stands at: the one after those that are completed.
int CurrentEntry(const SessionRecord& session);

bool IsTiered(const SessionRecord& session);

/// Whether the current entry completes the account, so that its results follow.
bool IsLastEntry(const SessionRecord& session);

/// The entry that Back leads to from the results: the next period while periods remain, else the
/// last entry, to be corrected and calculated again.
int EntryBehindResults(const SessionRecord& session);

/// The tier of an entry by method B, and the end of the tier that it verifies.
int TierOfEntry(int entry);
TierEnd EndOfEntry(int entry);

/// Sets PeriodNumber to the period or tier of the current entry.
void NumberCurrentEntry(SessionRecord& session);

/// What the fields show and which of them take typing when the window comes to stand at the
/// current entry, given what they show now. A stored entry comes back as it was; a new one keeps
/// what usually stays the same from one entry to the next.
DisclosureEntry PresentEntry(const SessionRecord& session, const DisclosureEntry& shown);

/// Whether Back has anything to keep of the current entry: of the first always, of a later one when
/// it was completed before or something was typed that belongs to it alone.
bool IsWorthKeeping(const SessionRecord& session, const DisclosureEntry& entry);

/// Whether the dates and their calendars can be used while the term field holds this text.
bool TermDatesEnabled(const SessionRecord& session, const std::string& term);

/// Takes the number of stepped periods from its field. Entries made for another number of periods
/// are forgotten, but for the first.
void TakePeriodNumber(SessionRecord& session, const DisclosureEntry& entry);

}  // namespace corvane
