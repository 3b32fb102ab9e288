#include "statement/StatementPeriod.h"

#include <algorithm>

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
  const std::string_view text = Trim(days.text);
  return days.enabled && (text == "0" || (caller == PeriodCaller::Calendar && text.empty()));
}

void FillPeriod(StatementEntry& entry, PeriodCaller caller, int days) {
  for (Field* field : {&entry.txtLedgerdays, &entry.txtColDays}) {
    if (WantsDates(*field, caller)) field->text = FormatPlain(days);
  }
}

}  // namespace

std::optional<Refusal> CountPeriod(const YearRule& year, StatementEntry& entry,
                                   PeriodCaller caller) {
  if (!WantsDates(entry.txtLedgerdays, caller) && !WantsDates(entry.txtColDays, caller)) {
    return std::nullopt;
  }
  const auto& messages = caller == PeriodCaller::DaysField ? kDaysFieldMessages : kMessages;
  const auto start = ParseDate(entry.txtDateStart.text);
  if (!start) return Refusal{messages.start, "txtDateStart"};
  const auto end = ParseDate(entry.txtDateEnd.text);
  if (!end) return Refusal{messages.end, "txtDateEnd"};
  const int days = CalendarTermDays(*start, *end, year.countsLeapDay);
  if (days < 1 || days > kLongestPeriod) {
    entry.txtDateStart.text = entry.txtDateEnd.text = kEmptyDateMask;
    return Refusal{messages.length, "txtDateStart"};
  }
  FillPeriod(entry, caller, days);
  return std::nullopt;
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

}  // namespace corvane
