#include "disclosure/EntryChecks.h"

#include <cmath>

#include "account/DailyRateFactor.h"
#include "account/OrderedChecks.h"
#include "disclosure/EntryTerm.h"
#include "formulas/TermCounting.h"
#include "support/Rounding.h"

namespace corvane {

namespace {

constexpr double kMostWithdrawalMonths = 1200;
constexpr int kFirstYear = 1901;
constexpr int kLastYear = 9999;
constexpr double kMostYears = 50;

/// What the checks look at.
struct Checked {
  const DisclosureCheck& check;
  const DisclosureEntry& entry;
  EntryTerm term;

  const DisclosureSetup& Setup() const { return check.setup; }
  Unit Compounding() const { return check.setup.compounding; }
  Unit Withdrawal() const { return check.setup.withdrawal; }
  double W() const { return entry.txtWdrwlPeriods.Value(); }
  double M() const { return entry.txtBtwnReqIntWdrwl.Value(); }
  bool IsOpen(const char* control) const { return entry.IsOpen(control); }
};

// Who takes part.

bool Everyone(const Checked&) {
  return true;
}
bool Stepped(const Checked& c) {
  return c.Setup().kind == AccountKind::Stepped;
}
bool Tiered(const Checked& c) {
  return c.Setup().IsTiered();
}
bool TieredB(const Checked& c) {
  return c.Setup().kind == AccountKind::TierB;
}
bool ByCalendar(const Checked& c) {
  return c.term.fromCalendar;
}
bool WithCalendar(const Checked& c) {
  return HasCalendar(c.Setup());
}
bool ByYears(const Checked& c) {
  return c.Compounding() == Unit::Years;
}
bool Withdrawing(const Checked& c) {
  return c.Withdrawal() != Unit::None;
}
bool DaysWithdrawnByDays(const Checked& c) {
  return c.Compounding() == Unit::Days && c.Withdrawal() == Unit::Days;
}
bool DaysWithdrawnByDaysInKnownTerm(const Checked& c) {
  return DaysWithdrawnByDays(c) && c.term.periods;
}
bool DaysWithdrawnByMonthsInKnownTerm(const Checked& c) {
  return c.Compounding() == Unit::Days && c.Withdrawal() == Unit::Months && c.term.periods;
}
bool OthersWithdrawnByMonths(const Checked& c) {
  return c.Compounding() != Unit::Days && c.Withdrawal() == Unit::Months;
}
bool ByDaysOrMonths(const Checked& c) {
  return c.Compounding() == Unit::Days || c.Compounding() == Unit::Months;
}
bool ByDaysOrMonthsWithoutWithdrawal(const Checked& c) {
  return ByDaysOrMonths(c) && !Withdrawing(c);
}
bool YearOf365(const Checked& c) {
  return c.Setup().year.days == 365;
}
bool LeapDayLeftOut(const Checked& c) {
  return !c.Setup().year.countsLeapDay;
}
bool LeapDayCounted(const Checked& c) {
  return c.Setup().year.countsLeapDay;
}

// What is wrong.

template <Field DisclosureEntry::*AField>
bool NotNumeric(const Checked& c) {
  return !(c.entry.*AField).IsNumber();
}
template <Field DisclosureEntry::*AField>
bool NoPercentage(const Checked& c) {
  return NotNumeric<AField>(c) || (c.entry.*AField).Value() < 0;
}
bool IsNoPeriodNumber(const Field& number) {
  return !IsWhole(number.Value()) || number.Value() < 2 || number.Value() > 10;
}
bool CountOutside2To10(const Checked& c) {
  return IsNoPeriodNumber(c.entry.txtTierPerNum);
}
bool IsNoMonth(const Field& month) {
  const auto number = WholeNumber(month.text);
  return !number || *number < 1 || *number > 12;
}
bool MonthOutsideYear(const Checked& c) {
  return IsNoMonth(c.entry.txtBeginMonth);
}
bool YearIsNoYear(const Checked& c) {
  const auto year = WholeNumber(c.entry.txtBeginYear.text);
  return !year || *year > kLastYear;
}
bool YearBefore1901(const Checked& c) {
  return WholeNumber(c.entry.txtBeginYear.text).value_or(kFirstYear) < kFirstYear;
}
bool BalanceNotAboveZero(const Checked& c) {
  return c.entry.txtBal.Value() <= 0;
}
bool StartDateInvalid(const Checked& c) {
  return !ParseDate(c.entry.tStartDate.text);
}
bool TermUnusable(const Checked& c) {
  // Dates that cannot be counted yet have messages of their own.
  const bool waitsForDates = c.term.fromCalendar && !c.term.calendarDays;
  return !waitsForDates && !IsUsableTerm(c.Setup(), c.term);
}
bool TermAbove50(const Checked& c) {
  return c.term.periods > kMostYears;
}
bool DistanceNotWhole(const Checked& c) {
  return !c.entry.txtBtwnReqIntWdrwl.IsNumber() || !IsWhole(c.M());
}
bool NoWithdrawal(const Checked& c) {
  return c.W() < 1;
}
bool TermNoMultipleOfWithdrawals(const Checked& c) {
  return std::fmod(RoundToDecimals(c.term.periods.value_or(0), 0), c.W()) != 0;
}
bool TermNotDividedByWithdrawals(const Checked& c) {
  return c.W() == 0 || !IsWhole(*c.term.periods / c.W());
}
bool DistanceIsNotPeriodLength(const Checked& c) {
  return c.M() != PeriodLength(c.Setup());
}
bool WithdrawalMonthsDoNotFillTerm(const Checked& c) {
  if (c.W() * c.M() > kMostWithdrawalMonths) return true;
  const double days = MonthPeriodDays(BeginOf(c.entry), c.W(), c.M(), c.Setup().year.countsLeapDay);
  return days != PeriodLength(c.Setup()) * *c.term.periods;
}
bool WithdrawalsUnusable(const Checked& c) {
  const bool tooMany = c.Withdrawal() == Unit::Months && c.W() * c.M() > kMostWithdrawalMonths;
  return !c.entry.txtWdrwlPeriods.IsNumber() || !IsWhole(c.W()) || tooMany;
}
bool WithdrawalsDifferFromPeriodLength(const Checked& c) {
  return c.W() != PeriodLength(c.Setup());
}
/// By method B the person types one balance only, which lies in the tier without an upper bound.
bool BalanceNotInLastTier(const Checked& c) {
  return c.entry.txtBal.Value() <= TiersOf(c.check.tiers).back().above;
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
std::optional<double> Denominator(const Checked& c) {
  return FactorDays(c.entry.txtDailyRateFactor.text);
}
bool EndDateEmpty(const Checked& c) {
  return c.entry.tEndDate.text == kEmptyDateMask;
}
bool EndDateInvalid(const Checked& c) {
  return !ParseDate(c.entry.tEndDate.text);
}

constexpr const char* kPeriodRange = "Please enter the period numbers from 2 to 10 only.";
constexpr const char* kNotDivisible =
    "The Compounding Period must be evenly divisble by the Withdrawal periods";
constexpr const char* kPeriods = "txtTierPerNum";
constexpr const char* kBalance = "txtBal";
constexpr const char* kTerm = "txtTerm";
constexpr const char* kFactor = "txtDailyRateFactor";
constexpr const char* kStart = "tStartDate";
constexpr const char* kEnd = "tEndDate";
constexpr const char* kWithdrawals = "txtWdrwlPeriods";
constexpr const char* kDistance = "txtBtwnReqIntWdrwl";

constexpr OrderedCheck<Checked> kChecks[] = {
    {Stepped, NotNumeric<&DisclosureEntry::txtTierPerNum>,
     "Please enter a valid period number value", kPeriods},
    {Stepped, CountOutside2To10, kPeriodRange, kPeriods},
    {Tiered, NotNumeric<&DisclosureEntry::txtTierPerNum>, "Please enter a valid Tier Number value",
     kPeriods},
    {Tiered, CountOutside2To10, "Please enter a Tier number from 2 to 10 only.", kPeriods},
    {Everyone, MonthOutsideYear, "Please enter a valid Beginning Month value", "txtBeginMonth"},
    {Everyone, YearIsNoYear, "Please enter a valid Beginning Year value.", "txtBeginYear"},
    {Everyone, YearBefore1901, "Please enter a Year value above 1900.", "txtBeginYear"},
    {Everyone, NoPercentage<&DisclosureEntry::txtDiscAPY>,
     "Please enter a valid Disclosed APY value", "txtDiscAPY"},
    {Everyone, NotNumeric<&DisclosureEntry::txtBal>,
     "Please enter a valid Principal Balance Amount", kBalance},
    {Everyone, BalanceNotAboveZero, "Please enter a valid Principal Balance Amount", kBalance},
    {Everyone, NoPercentage<&DisclosureEntry::txtIntRateA>,
     "Please enter a valid Interest Rate value", "txtIntRateA"},
    {ByCalendar, StartDateInvalid, "Starting Date is invalid, Please correct", kStart},
    {Everyone, TermUnusable, "Please enter a valid Compounding Period value", kTerm},
    {ByYears, TermAbove50, "Please enter a smaller number of years value to proceed.", kTerm},
    {Withdrawing, DistanceNotWhole,
     "Please enter a valid number for the duration between required interest withdrawals",
     kDistance},
    {DaysWithdrawnByDays, NoWithdrawal, "Please enter a valid Withdrawal Period for term",
     kWithdrawals},
    {OthersWithdrawnByMonths, NoWithdrawal, kNotDivisible, kWithdrawals},
    {OthersWithdrawnByMonths, TermNoMultipleOfWithdrawals, kNotDivisible, kTerm},
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
    {Everyone, [](const Checked& c) { return !Denominator(c); },
     "Please enter a valid Daily Rate Factor", kFactor},
    {YearOf365, [](const Checked& c) { return Denominator(c) == 366; },
     "Daily Rate Factor can't equal 366 if days selected equal 365", kFactor},
    {LeapDayLeftOut, [](const Checked& c) { return Denominator(c) > 365; },
     "Daily Rate Factor can not exceed 365", kFactor},
    {LeapDayCounted, [](const Checked& c) { return Denominator(c) > 366; },
     "Daily Rate Factor can not exceed 366", kFactor},
    {ByCalendar, EndDateEmpty, "Ending Date is invalid, Please correct", kEnd},
    {ByCalendar, EndDateInvalid, "Ending Date Date is invalid, Please correct", kEnd},
};

}  // namespace

std::optional<Refusal> CheckEntry(const DisclosureCheck& check, const DisclosureEntry& entry) {
  return FirstFailure<Checked>(kChecks, {check, entry, TermOf(check.setup, entry)});
}

DisclosureEntry Completed(const DisclosureCheck& check, DisclosureEntry entry) {
  if (entry.txtBeginMonth.enabled && !IsNoMonth(entry.txtBeginMonth)) {
    entry.txtBeginMonth.text = FormatTwoDigits(*WholeNumber(entry.txtBeginMonth.text));
  }
  if (!TermOf(check.setup, entry).fromCalendar || CheckEntry(check, entry)) return entry;
  entry.txtTerm.text = CountedTermText(check.setup, entry).value_or(entry.txtTerm.text);
  return entry;
}

std::optional<Refusal> CheckPeriodNumber(const Field& number) {
  if (number.IsEmpty() || !IsNoPeriodNumber(number)) return std::nullopt;
  return Refusal{kPeriodRange, kPeriods};
}

bool IsRateMissing(const DisclosureEntry& entry) {
  return !entry.txtIntRateA.enabled && entry.txtIntRateA.IsEmpty();
}

std::chrono::year_month BeginOf(const DisclosureEntry& entry) {
  const auto month = WholeNumber(entry.txtBeginMonth.text).value_or(0);
  const auto year = WholeNumber(entry.txtBeginYear.text).value_or(0);
  return std::chrono::year{year} / std::chrono::month{static_cast<unsigned>(month)};
}

}  // namespace corvane
