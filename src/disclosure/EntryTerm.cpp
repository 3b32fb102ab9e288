#include "disclosure/EntryTerm.h"

#include "account/DateEntry.h"
#include "formulas/TermCounting.h"

namespace corvane {

namespace {

constexpr double kMostDays = 36600;
constexpr double kMostMonths = 1200;

/// Days between the dates of the entry, when both are valid and in order.
std::optional<int> DaysBetweenDates(const DisclosureSetup& setup, const DisclosureEntry& entry) {
  const auto start = ParseDate(entry.tStartDate.text);
  const auto end = ParseDate(entry.tEndDate.text);
  if (!start || !end || DaysBetween(*start, *end) <= 0) return std::nullopt;
  return CalendarTermDays(*start, *end, setup.year.countsLeapDay);
}

/// How the days of a term divide into periods of so many days.
std::string PeriodsText(int days, int length) {
  if (length == 1) return "";
  const std::string each = " periods of " + std::to_string(length) + " days";
  if (days % length != 0) return ": no whole number of" + each;
  return ": " + std::to_string(days / length) + each;
}

bool StepsThroughPeriods(const DisclosureSetup& setup) {
  return setup.compounding == Unit::Months || setup.withdrawal != Unit::None ||
         (setup.compounding == Unit::Years && setup.kind == AccountKind::Stepped);
}

}  // namespace

bool AsksForCalendar(const Field& term) {
  return term.workedOut || term.IsEmpty() || term.Number() == 0.0;
}

bool HasCalendar(const DisclosureSetup& setup) {
  return setup.compounding == Unit::None || setup.compounding == Unit::Days;
}

EntryTerm TermOf(const DisclosureSetup& setup, const DisclosureEntry& entry) {
  EntryTerm term;
  term.fromCalendar = HasCalendar(setup) && AsksForCalendar(entry.txtTerm);
  if (!term.fromCalendar) {
    term.periods = entry.txtTerm.Number();
    return term;
  }
  term.calendarDays = DaysBetweenDates(setup, entry);
  if (term.calendarDays) {
    term.periods = static_cast<double>(*term.calendarDays) / PeriodLength(setup);
  }
  return term;
}

std::optional<std::string> CountedTermText(const DisclosureSetup& setup,
                                           const DisclosureEntry& entry) {
  const auto days = DaysBetweenDates(setup, entry);
  const int length = PeriodLength(setup);
  if (!days || *days <= 0 || *days % length != 0) return std::nullopt;
  return std::to_string(*days / length);
}

void CountTerm(const DisclosureSetup& setup, DisclosureEntry& entry) {
  if (!TermOf(setup, entry).fromCalendar) return;
  const auto counted = CountedTermText(setup, entry);
  Field& term = entry.txtTerm;
  if (counted || term.workedOut) term.text = counted.value_or("");
  term.workedOut |= counted.has_value();
}

std::string TermDatesText(const DisclosureSetup& setup, const DisclosureEntry& entry) {
  const auto start = ParseDate(entry.tStartDate.text);
  const auto end = ParseDate(entry.tEndDate.text);
  if (!start || !end) return "";
  const auto days = DaysBetweenDates(setup, entry);
  if (!days) return "The end date is not after the start date.";
  return DateCountText(*start, *end, setup.year.countsLeapDay) +
         PeriodsText(*days, PeriodLength(setup));
}

bool IsUsableTerm(const DisclosureSetup& setup, const EntryTerm& term) {
  if (!term.periods || *term.periods <= 0) return false;
  const bool mustBeWhole = term.fromCalendar || StepsThroughPeriods(setup);
  if (mustBeWhole && !IsWhole(*term.periods)) return false;
  if (setup.compounding == Unit::Years) return true;
  const double most = setup.compounding == Unit::Months ? kMostMonths : kMostDays;
  return *term.periods * PeriodLength(setup) <= most;
}

}  // namespace corvane
