#include "statement/StatementPeriod.h"

#include <algorithm>

#include "account/SessionRecord.h"
#include "formulas/TermCounting.h"
#include "support/Clock.h"

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

bool WantsDates(const StatementField& days, PeriodCaller caller) {
  const std::string_view text = Trim(days.text);
  return days.enabled && (text == "0" || (caller == PeriodCaller::Calendar && text.empty()));
}

void StoreStart(SessionRecord& session, const Date& start) {
  session.PeriodStart = SerialOf(start);
  session.CurrentDay = session.PeriodStart;
}

void EmptyDates(StatementEntry& entry) {
  entry.txtDateStart.text = kEmptyDateMask;
  entry.txtDateEnd.text = kEmptyDateMask;
}

void FillDays(StatementEntry& entry, PeriodCaller caller, int days) {
  for (StatementField* field : {&entry.txtLedgerdays, &entry.txtColDays}) {
    if (WantsDates(*field, caller)) field->text = FormatPlain(days);
  }
}

std::optional<Refusal> CountPeriod(SessionRecord& session, StatementEntry& entry,
                                   PeriodCaller caller) {
  const PeriodMessages& messages =
      caller == PeriodCaller::DaysField ? kDaysFieldMessages : kMessages;
  const auto start = ParseDate(entry.txtDateStart.text);
  if (!start) return Refusal{.text = messages.start, .field = "txtDateStart"};
  const auto end = ParseDate(entry.txtDateEnd.text);
  if (!end) return Refusal{.text = messages.end, .field = "txtDateEnd"};
  StoreStart(session, *start);
  const int days = CalendarTermDays(*start, *end, session.CountLeapDay);
  if (days < 1 || days > kLongestPeriod) {
    EmptyDates(entry);
    return Refusal{.text = messages.length, .field = "txtDateStart"};
  }
  entry.txtDateStart.text = FormatDate(*start);
  entry.txtDateEnd.text = FormatDate(*end);
  FillDays(entry, caller, days);
  return std::nullopt;
}

}  // namespace

std::optional<Refusal> CheckStatementPeriod(SessionRecord& session, StatementEntry& entry,
                                            PeriodCaller caller) {
  const bool wanted =
      WantsDates(entry.txtLedgerdays, caller) || WantsDates(entry.txtColDays, caller);
  return wanted ? CountPeriod(session, entry, caller) : std::nullopt;
}

void StorePeriodStart(SessionRecord& session, const StatementEntry& entry) {
  StoreStart(session, ParseDate(entry.txtDateStart.text).value_or(Today()));
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

}  // namespace corvane
