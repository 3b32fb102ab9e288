#include "disclosure/EntryChecks.h"

#include <cmath>

#include "account/SessionRecord.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/EntryTerm.h"
#include "formulas/DailyRateFactor.h"
#include "formulas/RoundValue.h"
#include "formulas/TermCounting.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr double kMostWithdrawalMonths = 1200;
constexpr int kFirstYear = 1901;
constexpr int kLastYear = 9999;
constexpr double kMostYears = 50;

/// What the checks look at.
struct Checked {
  const SessionRecord& session;
  const DisclosureEntry& entry;
  EntryTerm term;

  double Value(EntryField DisclosureEntry::*field) const {
    return NumericValue((entry.*field).text);
  }
  bool IsNumber(EntryField DisclosureEntry::*field) const { return IsNumeric((entry.*field).text); }
  double W() const { return Value(&DisclosureEntry::txtWdrwlPeriods); }
  double M() const { return Value(&DisclosureEntry::txtBtwnReqIntWdrwl); }
};

using Condition = bool (*)(const Checked&);

// Who takes part.

bool Everyone(const Checked&) {
  return true;
}
bool Stepped(const Checked& c) {
  return c.session.AcctStepped;
}
bool Tiered(const Checked& c) {
  return IsTiered(c.session);
}
bool TieredB(const Checked& c) {
  return c.session.AcctTierB;
}
bool ByCalendar(const Checked& c) {
  return c.term.fromCalendar;
}
bool WithCalendar(const Checked& c) {
  return HasCalendar(c.session);
}
bool ByYears(const Checked& c) {
  return c.session.CompoundYears;
}
bool Withdrawing(const Checked& c) {
  return c.session.ReqWdrwlDays || c.session.ReqWdrwlMonths;
}
bool DaysWithdrawnByDays(const Checked& c) {
  return c.session.CompoundDays && c.session.ReqWdrwlDays;
}
bool DaysWithdrawnByDaysInKnownTerm(const Checked& c) {
  return DaysWithdrawnByDays(c) && c.term.periods;
}
bool DaysWithdrawnByMonthsInKnownTerm(const Checked& c) {
  return c.session.CompoundDays && c.session.ReqWdrwlMonths && c.term.periods;
}
bool OthersWithdrawnByMonths(const Checked& c) {
  return !c.session.CompoundDays && c.session.ReqWdrwlMonths;
}
bool ByDaysOrMonths(const Checked& c) {
  return c.session.CompoundDays || c.session.CompoundMonths;
}
bool ByDaysOrMonthsWithoutWithdrawal(const Checked& c) {
  return ByDaysOrMonths(c) && !Withdrawing(c);
}
bool YearOf365(const Checked& c) {
  return c.session.DaysInYear365;
}
bool LeapDayLeftOut(const Checked& c) {
  return !c.session.CountLeapDay;
}
bool LeapDayCounted(const Checked& c) {
  return c.session.CountLeapDay;
}

// What is wrong.

template <EntryField DisclosureEntry::*Field>
bool NotNumeric(const Checked& c) {
  return !c.IsNumber(Field);
}
bool CountOutside2To10(const Checked& c) {
  const double count = c.Value(&DisclosureEntry::txtTierPerNum);
  return !IsWhole(count) || count < 2 || count > 10;
}
bool MonthOutsideYear(const Checked& c) {
  const auto month = WholeNumber(c.entry.txtBeginMonth.text);
  return !month || *month < 1 || *month > 12;
}
bool YearIsNoYear(const Checked& c) {
  const auto year = WholeNumber(c.entry.txtBeginYear.text);
  return !year || *year > kLastYear;
}
bool YearBefore1901(const Checked& c) {
  return *WholeNumber(c.entry.txtBeginYear.text) < kFirstYear;
}
bool BalanceNotAboveZero(const Checked& c) {
  return c.Value(&DisclosureEntry::txtBal) <= 0;
}
bool StartDateInvalid(const Checked& c) {
  return !ParseDate(c.entry.tStartDate.text);
}
bool TermUnusable(const Checked& c) {
  // Dates that cannot be counted yet have messages of their own.
  const bool waitsForDates = c.term.fromCalendar && !c.term.calendarDays;
  return !waitsForDates && !IsUsableTerm(c.session, c.term);
}
bool TermAbove50(const Checked& c) {
  return c.term.periods > kMostYears;
}
bool DistanceNotWhole(const Checked& c) {
  return !c.IsNumber(&DisclosureEntry::txtBtwnReqIntWdrwl) || !IsWhole(c.M());
}
bool NoWithdrawal(const Checked& c) {
  return c.W() < 1;
}
bool TermNoMultipleOfWithdrawals(const Checked& c) {
  return c.W() < 1 || std::fmod(RoundToDecimals(c.term.periods.value_or(0), 0), c.W()) != 0;
}
bool TermNotDividedByWithdrawals(const Checked& c) {
  return c.W() == 0 || !IsWhole(*c.term.periods / c.W());
}
bool DistanceIsNotPeriodLength(const Checked& c) {
  return c.M() != PeriodLength(c.session);
}
bool WithdrawalMonthsDoNotFillTerm(const Checked& c) {
  if (c.W() * c.M() > kMostWithdrawalMonths) return true;
  const double days =
      CountMonthPeriodDays(WholeNumber(c.entry.txtBeginMonth.text).value_or(1),
                           WholeNumber(c.entry.txtBeginYear.text).value_or(kFirstYear), c.W(),
                           c.M(), c.session.CountLeapDay);
  return days != PeriodLength(c.session) * *c.term.periods;
}
bool WithdrawalsUnusable(const Checked& c) {
  const bool tooMany = c.session.ReqWdrwlMonths && c.W() * c.M() > kMostWithdrawalMonths;
  return !c.IsNumber(&DisclosureEntry::txtWdrwlPeriods) || !IsWhole(c.W()) || tooMany;
}
bool WithdrawalsDifferFromPeriodLength(const Checked& c) {
  return c.W() != PeriodLength(c.session);
}
/// By method B the person types one balance only, which lies in the tier without an upper bound.
bool BalanceNotInLastTier(const Checked& c) {
  return c.Value(&DisclosureEntry::txtBal) <= c.session.TierAbove.At(c.session.TotalTiers);
}
std::optional<int> DaysFromStartToEnd(const Checked& c) {
  const auto start = ParseDate(c.entry.tStartDate.text);
  const auto end = ParseDate(c.entry.tEndDate.text);
  return start && end ? std::optional(DaysBetween(*start, *end)) : std::nullopt;
}
bool DatesEqual(const Checked& c) {
  return DaysFromStartToEnd(c) == 0;
}
bool EndBeforeStart(const Checked& c) {
  return DaysFromStartToEnd(c).value_or(0) < 0;
}
double Denominator(const Checked& c) {
  return FactorDenominator(c.entry.txtDailyRateFactor.text).value_or(0);
}
bool FactorMalformed(const Checked& c) {
  const bool isOneOver = c.entry.txtDailyRateFactor.text.starts_with("1/");
  return !isOneOver || Denominator(c) < 1 || !IsWhole(Denominator(c));
}
bool FactorIs366(const Checked& c) {
  return Denominator(c) == 366;
}
bool FactorAbove365(const Checked& c) {
  return Denominator(c) > 365;
}
bool FactorAbove366(const Checked& c) {
  return Denominator(c) > 366;
}
bool EmptyStart(const Checked& c) {
  return c.entry.tStartDate.text == kEmptyDateMask || c.entry.tStartDate.text.empty();
}
bool EmptyEnd(const Checked& c) {
  return c.entry.tEndDate.text == kEmptyDateMask || c.entry.tEndDate.text.empty();
}
bool EndDateInvalid(const Checked& c) {
  return !ParseDate(c.entry.tEndDate.text);
}
bool SlashIsNotSecond(const Checked& c) {
  return c.entry.txtDailyRateFactor.text.find('/') != 1;
}

struct EntryCheck {
  Condition takesPart;
  Condition fails;
  const char* message;
  EntryField DisclosureEntry::*field;
};

constexpr auto kPeriods = &DisclosureEntry::txtTierPerNum;
constexpr auto kMonth = &DisclosureEntry::txtBeginMonth;
constexpr auto kYear = &DisclosureEntry::txtBeginYear;
constexpr auto kApy = &DisclosureEntry::txtDiscAPY;
constexpr auto kBalance = &DisclosureEntry::txtBal;
constexpr auto kRate = &DisclosureEntry::txtIntRateA;
constexpr auto kTerm = &DisclosureEntry::txtTerm;
constexpr auto kFactor = &DisclosureEntry::txtDailyRateFactor;
constexpr auto kStart = &DisclosureEntry::tStartDate;
constexpr auto kEnd = &DisclosureEntry::tEndDate;
constexpr auto kWithdrawals = &DisclosureEntry::txtWdrwlPeriods;
constexpr auto kDistance = &DisclosureEntry::txtBtwnReqIntWdrwl;

constexpr const char* kPeriodRange = "Please enter the period numbers from 2 to 10 only.";
constexpr const char* kTierRange = "Please enter a Tier number from 2 to 10 only.";

constexpr EntryCheck kEntryChecks[] = {
    {Stepped, NotNumeric<kPeriods>, "Please enter a valid period number value", kPeriods},
    {Stepped, CountOutside2To10, kPeriodRange, kPeriods},
    {Tiered, NotNumeric<kPeriods>, "Please enter a valid Tier Number value", kPeriods},
    {Tiered, CountOutside2To10, kTierRange, kPeriods},
    {Everyone, MonthOutsideYear, "Please enter a valid Beginning Month value", kMonth},
    {Everyone, YearIsNoYear, "Please enter a valid Beginning Year value.", kYear},
    {Everyone, YearBefore1901, "Please enter a Year value above 1900.", kYear},
    {Everyone, NotNumeric<kApy>, "Please enter a valid Disclosed APY value", kApy},
    {Everyone, NotNumeric<kBalance>, "Please enter a valid Principal Balance Amount", kBalance},
    {Everyone, BalanceNotAboveZero, "Please enter a valid Principal Balance Amount", kBalance},
    {Everyone, NotNumeric<kRate>, "Please enter a valid Interest Rate value", kRate},
    {ByCalendar, StartDateInvalid, "Starting Date is invalid, Please correct", kStart},
    {Everyone, TermUnusable, "Please enter a valid Compounding Period value", kTerm},
    {ByYears, TermAbove50, "Please enter a smaller number of years value to proceed.", kTerm},
    {Withdrawing, DistanceNotWhole,
     "Please enter a valid number for the duration between required interest withdrawals",
     kDistance},
    {DaysWithdrawnByDays, NoWithdrawal, "Please enter a valid Withdrawal Period for term",
     kWithdrawals},
    {OthersWithdrawnByMonths, TermNoMultipleOfWithdrawals,
     "The Compounding Period must be evenly divisble by the Withdrawal periods", kTerm},
    {DaysWithdrawnByDaysInKnownTerm, TermNotDividedByWithdrawals,
     "Withdrawal periods do not agree with compound periods", kTerm},
    {DaysWithdrawnByDays, DistanceIsNotPeriodLength,
     "The duration of days between compounding period and the interest withdrawal period should "
     "be same",
     kDistance},
    {DaysWithdrawnByMonthsInKnownTerm, WithdrawalMonthsDoNotFillTerm,
     "The Term period should be evenly divisible by the withdrawal periods", kTerm},
    {ByDaysOrMonths, WithdrawalsUnusable, "Please enter the Period for the withdrawal of interest",
     kWithdrawals},
    {ByDaysOrMonthsWithoutWithdrawal, WithdrawalsDifferFromPeriodLength,
     "Please enter the Period equal to the compound period", kWithdrawals},
    {TieredB, BalanceNotInLastTier, "Please enter Balance for Tier to proceed", kBalance},
    {WithCalendar, DatesEqual, "Both the dates cannot be same. Please try again.", kEnd},
    {WithCalendar, EndBeforeStart,
     "The End date cannot be earlier than the Start date. Please try again.", kEnd},
    {Everyone, FactorMalformed, "Please enter a valid Daily Rate Factor", kFactor},
    {YearOf365, FactorIs366, "Daily Rate Factor can't equal 366 if days selected equal 365",
     kFactor},
    {LeapDayLeftOut, FactorAbove365, "Daily Rate Factor can not exceed 365", kFactor},
    {LeapDayCounted, FactorAbove366, "Daily Rate Factor can not exceed 366", kFactor},
};

constexpr EntryCheck kCalendarChecks[] = {
    {ByCalendar, EmptyStart, "Starting Date is invalid, Please correct", kStart},
    {ByCalendar, StartDateInvalid, "Starting Date Date is invalid, Please correct", kStart},
    {ByCalendar, EmptyEnd, "Ending Date is invalid, Please correct", kEnd},
    {ByCalendar, EndDateInvalid, "Ending Date Date is invalid, Please correct", kEnd},
    {Everyone, SlashIsNotSecond, "Please enter the valid Daily Rate factor.", kFactor},
};

template <std::size_t Count>
std::optional<Refusal> FirstFailure(const EntryCheck (&checks)[Count], const Checked& checked) {
  for (const EntryCheck& check : checks) {
    const bool takesPart = (checked.entry.*check.field).enabled && check.takesPart(checked);
    if (takesPart && check.fails(checked)) return Refusal{check.message, NameOf(check.field)};
  }
  return std::nullopt;
}

}  // namespace

const char* NameOf(EntryField DisclosureEntry::*field) {
  for (const EntryFieldName& known : kEntryFields) {
    if (known.field == field) return known.name;
  }
  return "";
}

bool IsRateMissing(const DisclosureEntry& entry) {
  return !entry.txtIntRateA.enabled && Trim(entry.txtIntRateA.text).empty();
}

std::optional<Refusal> CheckEntry(const SessionRecord& session, DisclosureEntry& entry) {
  const Checked checked{session, entry, TermOf(session, entry)};
  if (entry.txtBeginMonth.enabled && !MonthOutsideYear(checked)) {
    entry.txtBeginMonth.text = FormatTwoDigits(*WholeNumber(entry.txtBeginMonth.text));
  }
  return FirstFailure(kEntryChecks, checked);
}

std::optional<Refusal> CheckCalendarTerm(const SessionRecord& session, DisclosureEntry& entry) {
  const Checked checked{session, entry, TermOf(session, entry)};
  const auto refusal = FirstFailure(kCalendarChecks, checked);
  if (!refusal && checked.term.fromCalendar) {
    entry.txtTerm.text = CountedTermText(session, entry).value_or(entry.txtTerm.text);
  }
  return refusal;
}

std::optional<Refusal> CheckPeriodNumber(const SessionRecord& session, const std::string& text) {
  DisclosureEntry entry;
  entry.txtTierPerNum.text = text;
  if (Trim(text).empty() || !CountOutside2To10({session, entry, {}})) return std::nullopt;
  return Refusal{kPeriodRange, "txtTierPerNum"};
}

}  // namespace corvane
