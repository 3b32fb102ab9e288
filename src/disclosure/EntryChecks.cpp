#include "disclosure/EntryChecks.h"

#include <cmath>

#include "account/OrderedChecks.h"
#include "disclosure/EntryNumbers.h"
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
  EntryNumbers numbers = EntryNumbers(entry);
  EntryTerm term = TermOf(check.setup, entry);
  int periodLength = PeriodLength(check.setup);

  const DisclosureSetup& Setup() const { return check.setup; }
  Unit Compounding() const { return check.setup.compounding; }
  Unit Withdrawal() const { return check.setup.withdrawal; }
  double W() const { return numbers.withdrawals.value_or(0); }
  double M() const { return numbers.distance.value_or(0); }
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

template <std::optional<double> EntryNumbers::*ANumber>
bool NotNumeric(const Checked& c) {
  return !(c.numbers.*ANumber);
}
template <std::optional<double> EntryNumbers::*ANumber>
bool NoPercentage(const Checked& c) {
  return !(c.numbers.*ANumber) || *(c.numbers.*ANumber) < 0;
}
bool IsNoPeriodNumber(std::optional<double> number) {
  return !number || !IsWhole(*number) || *number < 2 || *number > 10;
}
bool CountOutside2To10(const Checked& c) {
  return IsNoPeriodNumber(c.numbers.periodNumber);
}
bool IsMonth(std::optional<std::int16_t> number) {
  return number && *number >= 1 && *number <= 12;
}
bool MonthOutsideYear(const Checked& c) {
  return !IsMonth(c.numbers.beginMonth);
}
bool YearIsNoYear(const Checked& c) {
  return !c.numbers.beginYear || *c.numbers.beginYear > kLastYear;
}
bool YearBefore1901(const Checked& c) {
  return c.numbers.beginYear.value_or(kFirstYear) < kFirstYear;
}
bool BalanceNotAboveZero(const Checked& c) {
  return c.numbers.balance.value_or(0) <= 0;
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
  return !c.numbers.distance || !IsWhole(c.M());
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
  return c.M() != c.periodLength;
}
bool WithdrawalMonthsDoNotFillTerm(const Checked& c) {
  if (c.W() * c.M() > kMostWithdrawalMonths) return true;
  const double days =
      MonthPeriodDays(c.numbers.Begin(), c.W(), c.M(), c.Setup().year.countsLeapDay);
  return days != c.periodLength * *c.term.periods;
}
bool WithdrawalsUnusable(const Checked& c) {
  const bool tooMany = c.Withdrawal() == Unit::Months && c.W() * c.M() > kMostWithdrawalMonths;
  return !c.numbers.withdrawals || !IsWhole(c.W()) || tooMany;
}
bool WithdrawalsDifferFromPeriodLength(const Checked& c) {
  return c.W() != c.periodLength;
}
/// By method B the person types one balance only, which lies in the tier without an upper bound.
bool BalanceNotInLastTier(const Checked& c) {
  return c.numbers.balance.value_or(0) <= TiersOf(c.check.tiers).back().above;
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
    {Stepped, NotNumeric<&EntryNumbers::periodNumber>, "Please enter a valid period number value",
     kPeriods},
    {Stepped, CountOutside2To10, kPeriodRange, kPeriods},
    {Tiered, NotNumeric<&EntryNumbers::periodNumber>, "Please enter a valid Tier Number value",
     kPeriods},
    {Tiered, CountOutside2To10, "Please enter a Tier number from 2 to 10 only.", kPeriods},
    {Everyone, MonthOutsideYear, "Please enter a valid Beginning Month value", "txtBeginMonth"},
    {Everyone, YearIsNoYear, "Please enter a valid Beginning Year value.", "txtBeginYear"},
    {Everyone, YearBefore1901, "Please enter a Year value above 1900.", "txtBeginYear"},
    {Everyone, NoPercentage<&EntryNumbers::disclosedApy>,
     "Please enter a valid Disclosed APY value", "txtDiscAPY"},
    {Everyone, NotNumeric<&EntryNumbers::balance>, "Please enter a valid Principal Balance Amount",
     kBalance},
    {Everyone, BalanceNotAboveZero, "Please enter a valid Principal Balance Amount", kBalance},
    {Everyone, NoPercentage<&EntryNumbers::rate>, "Please enter a valid Interest Rate value",
     "txtIntRateA"},
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
    {Everyone, [](const Checked& c) { return !c.numbers.factorDays; },
     "Please enter a valid Daily Rate Factor", kFactor},
    {YearOf365, [](const Checked& c) { return c.numbers.factorDays == 366; },
     "Daily Rate Factor can't equal 366 if days selected equal 365", kFactor},
    {LeapDayLeftOut, [](const Checked& c) { return c.numbers.factorDays > 365; },
     "Daily Rate Factor can not exceed 365", kFactor},
    {LeapDayCounted, [](const Checked& c) { return c.numbers.factorDays > 366; },
     "Daily Rate Factor can not exceed 366", kFactor},
    {ByCalendar, EndDateEmpty, "Ending Date is invalid, Please correct", kEnd},
    {ByCalendar, EndDateInvalid, "Ending Date Date is invalid, Please correct", kEnd},
};

}  // namespace

std::optional<Refusal> CheckEntry(const DisclosureCheck& check, const DisclosureEntry& entry) {
  return FirstFailure<Checked>(kChecks, {check, entry});
}

void Complete(const DisclosureSetup& setup, DisclosureEntry& entry, bool passes) {
  if (entry.txtBeginMonth.enabled) {
    const auto month = WholeNumber(entry.txtBeginMonth.text);
    if (IsMonth(month)) entry.txtBeginMonth.text = FormatTwoDigits(*month);
  }
  if (!passes || !TermOf(setup, entry).fromCalendar) return;
  entry.txtTerm.text = CountedTermText(setup, entry).value_or(entry.txtTerm.text);
}

std::optional<Refusal> CheckPeriodNumber(const Field& number) {
  if (number.IsEmpty() || !IsNoPeriodNumber(number.Number())) return std::nullopt;
  return Refusal{kPeriodRange, kPeriods};
}

bool IsRateMissing(const DisclosureEntry& entry) {
  return !entry.txtIntRateA.enabled && entry.txtIntRateA.IsEmpty();
}

}  // namespace corvane
