#include "statement/StatementPeriod.h"

#include <algorithm>

#include "account/DateEntry.h"
#include "formulas/TermCounting.h"

namespace corvane {

namespace {

struct PeriodMessages {
  const char* start;
  const char* end;
  const char* length;
};

constexpr PeriodMessages kMessages = {
    "Starting Date is invalid, Please correct", "Ending Date is invalid, Please correct",
    "Number of valid days must be between 1 and 96, Please adjust"};

constexpr PeriodMessages kDaysFieldMessages = {"Starting Date Date is invalid, Please correct",
                                               "Ending Date Date is invalid, Please correct",
                                               "Number of days may not exceed 96, Please adjust"};

constexpr std::string_view kLeavesUncounted[] = {"txtDateStart", "txtDateEnd",    "ImgCalendar",
                                                 "cmdBack",      "cmdNewAcct",    "cmdExit",
                                                 "mnuMain",      "mnuNewAccount", "mnuExit"};

bool WantsDates(const Field& days, PeriodCaller caller) {
  if (!days.enabled) return false;
  const std::string_view text = Trim(days.text);
  return text == "0" || (caller == PeriodCaller::Calendar && text.empty()) ||
         (caller == PeriodCaller::Button && days.workedOut);
}

/// A date that is none is refused where it is needed. One that is half typed is refused wherever
/// the period is acted on, so that no other date stands in for it.
bool IsRefused(const Field& date, bool needed, PeriodCaller caller) {
  const bool halfTyped = date.text != kEmptyDateMask && caller != PeriodCaller::DaysField;
  return !ParseDate(date.text) && (needed || halfTyped);
}

std::optional<Refusal> CheckDates(const StatementEntry& entry, bool needed, PeriodCaller caller) {
  const auto& messages = caller == PeriodCaller::DaysField ? kDaysFieldMessages : kMessages;
  if (IsRefused(entry.txtDateStart, needed, caller)) {
    return Refusal{messages.start, "txtDateStart"};
  }
  if (IsRefused(entry.txtDateEnd, needed, caller)) return Refusal{messages.end, "txtDateEnd"};
  return std::nullopt;
}

/// Days between the dates; nothing unless both are valid.
std::optional<int> DaysOfDates(const YearRule& year, const StatementEntry& entry) {
  const auto start = ParseDate(entry.txtDateStart.text);
  const auto end = ParseDate(entry.txtDateEnd.text);
  if (!start || !end) return std::nullopt;
  return CalendarTermDays(*start, *end, year.countsLeapDay);
}

bool IsPeriod(std::optional<int> days) {
  return days && *days >= 1 && *days <= kLongestPeriod;
}

}  // namespace

std::optional<Refusal> CountPeriod(const YearRule& year, StatementEntry& entry,
                                   PeriodCaller caller) {
  Field* const fields[] = {&entry.txtLedgerdays, &entry.txtColDays};
  const auto wanting = [caller](const Field* days) { return WantsDates(*days, caller); };
  const bool needed = std::ranges::any_of(fields, wanting);
  if (auto refusal = CheckDates(entry, needed, caller)) return refusal;
  if (!needed) return std::nullopt;
  if (!IsPeriod(DaysOfDates(year, entry))) {
    entry.txtDateStart.text = entry.txtDateEnd.text = kEmptyDateMask;
    RecountPeriod(year, entry);
    const auto& messages = caller == PeriodCaller::DaysField ? kDaysFieldMessages : kMessages;
    return Refusal{messages.length, "txtDateStart"};
  }
  for (Field* days : fields) days->workedOut |= wanting(days);
  RecountPeriod(year, entry);
  return std::nullopt;
}

void RecountPeriod(const YearRule& year, StatementEntry& entry) {
  const auto days = DaysOfDates(year, entry);
  for (Field* field : {&entry.txtLedgerdays, &entry.txtColDays}) {
    if (field->workedOut) field->text = IsPeriod(days) ? FormatPlain(*days) : "";
  }
}

std::optional<Refusal> DaysNotice(const YearRule& year, const StatementEntry& entry) {
  const auto days = DaysOfDates(year, entry);
  for (const Field* field : {&entry.txtLedgerdays, &entry.txtColDays}) {
    const bool typed = field->enabled && !field->workedOut;
    if (!days || !typed || field->Value() == *days) continue;
    return Refusal{.text = "The dates count " + FormatPlain(*days) + " days; the entry is " +
                           FormatPlain(field->Value()) + ".",
                   .icon = MessageIcon::None};
  }
  return std::nullopt;
}

std::string PeriodDatesText(const YearRule& year, const StatementEntry& entry) {
  const auto days = DaysOfDates(year, entry);
  if (!days) return "";
  if (!IsPeriod(days)) {
    return FormatPlain(*days) + " days from start to end; a period has 1 to " +
           FormatPlain(kLongestPeriod);
  }
  return DateCountText(*ParseDate(entry.txtDateStart.text), *ParseDate(entry.txtDateEnd.text),
                       year.countsLeapDay);
}

Date PeriodStart(const StatementEntry& entry, const Date& today) {
  return ParseDate(entry.txtDateStart.text).value_or(today);
}

bool LeavingCountsPeriod(std::string_view nextControl) {
  return std::ranges::find(kLeavesUncounted, nextControl) == std::end(kLeavesUncounted);
}

DatesToAsk DatesForCalendar(const StatementEntry& entry) {
  const bool startEmpty = entry.txtDateStart.text == kEmptyDateMask;
  const bool endEmpty = entry.txtDateEnd.text == kEmptyDateMask;
  const bool bothFilled = !startEmpty && !endEmpty;
  return {startEmpty || bothFilled, endEmpty || bothFilled};
}

Date CalendarOfEnd(const StatementEntry& entry, const Date& today) {
  return ParseDate(entry.txtDateEnd.text).value_or(PeriodStart(entry, today));
}

}  // namespace corvane
