#include "disclosure/EntryTerm.h"

#include <algorithm>

#include "account/SessionRecord.h"
#include "formulas/TermCounting.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr double kMostDays = 36600;
constexpr double kMostMonths = 1200;

/// Days between the dates of the entry, when both are valid and in order.
std::optional<int> DaysBetweenDates(const SessionRecord& session, const DisclosureEntry& entry) {
  const auto start = ParseDate(entry.tStartDate.text);
  const auto end = ParseDate(entry.tEndDate.text);
  if (!start || !end || DaysBetween(*start, *end) <= 0) return std::nullopt;
  return CalendarTermDays(*start, *end, session.CountLeapDay);
}

bool StepsThroughPeriods(const SessionRecord& session) {
  return session.CompoundMonths || session.ReqWdrwlDays || session.ReqWdrwlMonths ||
         (session.CompoundYears && session.AcctStepped);
}

}  // namespace

bool AsksForCalendar(std::string_view termText) {
  return Trim(termText).empty() || (IsNumeric(termText) && NumericValue(termText) == 0);
}

bool HasCalendar(const SessionRecord& session) {
  return session.CompoundNone || session.CompoundDays;
}

int PeriodLength(const SessionRecord& session) {
  if (session.CompoundNone) return 1;
  return std::max<int>(1, session.CompoundingDays);
}

EntryTerm TermOf(const SessionRecord& session, const DisclosureEntry& entry) {
  EntryTerm term;
  term.fromCalendar = HasCalendar(session) && AsksForCalendar(entry.txtTerm.text);
  if (!term.fromCalendar) {
    if (IsNumeric(entry.txtTerm.text)) term.periods = NumericValue(entry.txtTerm.text);
    return term;
  }
  term.calendarDays = DaysBetweenDates(session, entry);
  if (term.calendarDays) term.periods = double(*term.calendarDays) / PeriodLength(session);
  return term;
}

std::optional<std::string> CountedTermText(const SessionRecord& session,
                                           const DisclosureEntry& entry) {
  const auto days = DaysBetweenDates(session, entry);
  const int length = PeriodLength(session);
  if (!days || *days <= 0 || *days % length != 0) return std::nullopt;
  return FormatPlain(*days / length);
}

bool IsUsableTerm(const SessionRecord& session, const EntryTerm& term) {
  if (!term.periods || *term.periods <= 0) return false;
  const bool mustBeWhole = term.fromCalendar || StepsThroughPeriods(session);
  if (mustBeWhole && !IsWhole(*term.periods)) return false;
  if (session.CompoundYears) return true;
  const double most = session.CompoundMonths ? kMostMonths : kMostDays;
  return *term.periods * PeriodLength(session) <= most;
}

}  // namespace corvane
