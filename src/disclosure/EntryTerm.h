#pragma once

#include <optional>
#include <string>

#include "disclosure/DisclosureEntry.h"
#include "disclosure/DisclosureSetup.h"

namespace corvane {

/// Whether a term field leaves the counting to the two dates: it is empty or 0, or they filled it.
bool AsksForCalendar(const Field& term);

/// Whether the term can be given by two dates at all: no compounding, or compounding by days.
bool HasCalendar(const DisclosureSetup& setup);

/// The term of an entry, from its term field or from its dates.
struct EntryTerm {
  bool fromCalendar = false;
  /// Days between the dates, when both are valid and the end is after the start.
  std::optional<int> calendarDays;
  /// The term as the formulas take it, in days or N-unit periods; nothing while it is unknown.
  std::optional<double> periods;
};
EntryTerm TermOf(const DisclosureSetup& setup, const DisclosureEntry& entry);

/// The term text that two dates give: their days divided by N, since the formulas multiply by N.
/// Nothing when the dates are not in order or leave a rest.
std::optional<std::string> CountedTermText(const DisclosureSetup& setup,
                                           const DisclosureEntry& entry);

/// Fills a term that is left to the dates with their count; one that they filled before is emptied
/// when they give none.
void CountTerm(const DisclosureSetup& setup, DisclosureEntry& entry);

/// What the two dates of an entry count, in days and, of an account that compounds every so many
/// days, in periods; empty while one of them is no date.
std::string TermDatesText(const DisclosureSetup& setup, const DisclosureEntry& entry);

/// Whether the formulas can take the term: above 0, whole wherever periods are stepped through one
/// by one, and of no more than 36,600 days or 1,200 months.
bool IsUsableTerm(const DisclosureSetup& setup, const EntryTerm& term);

}  // namespace corvane
