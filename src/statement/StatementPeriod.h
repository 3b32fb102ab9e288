#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "statement/StatementEntry.h"

namespace corvane {

/// The most days that a statement period may have.
inline constexpr int kLongestPeriod = 96;

/// What asks for the period to be counted; the messages differ.
enum class PeriodCaller { Button, Calendar, DaysField };

/// Fills every enabled days field that holds "0" (after the calendar also an empty one, for a
/// button also one that the dates filled before) with the days between the two dates, less the 29
/// Februaries that do not count. Refuses a date that is none where it is needed, one that is not
/// empty either also beside typed days unless a days field asks, and a period of fewer than 1 or
/// more than 96 days, whose dates are emptied.
std::optional<Refusal> CountPeriod(const YearRule& year, StatementEntry& entry,
                                   PeriodCaller caller);

/// Counts the days fields that the dates filled anew; they are empty while the dates give no
/// period.
void RecountPeriod(const YearRule& year, StatementEntry& entry);

/// What is told of typed days that differ from two valid dates.
std::optional<Refusal> DaysNotice(const YearRule& year, const StatementEntry& entry);

/// What the two dates count, and how many days a period may have where they count others; empty
/// while one of them is no date.
std::string PeriodDatesText(const YearRule& year, const StatementEntry& entry);

/// The first day of the period: the start date where it is valid, else today.
Date PeriodStart(const StatementEntry& entry, const Date& today);

/// Whether leaving a days field for the named control (or menu item) counts the period: not on
/// the way to the dates and not on the way out of the window.
bool LeavingCountsPeriod(std::string_view nextControl);

/// The dates that the calendar asks for: the empty ones, both when both are filled.
struct DatesToAsk {
  bool start;
  bool end;
};
DatesToAsk DatesForCalendar(const StatementEntry& entry);

/// Where the calendar of the end date opens: at it, else at the start date, else today.
Date CalendarOfEnd(const StatementEntry& entry, const Date& today);

}  // namespace corvane
