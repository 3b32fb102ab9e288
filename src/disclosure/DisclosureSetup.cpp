#include "disclosure/DisclosureSetup.h"

#include <algorithm>

#include "account/OrderedChecks.h"
#include "support/Rounding.h"

namespace corvane {

namespace {

using Setup = DisclosureSetup;

constexpr const char* kInterval = "txtDailyCompounding";

constexpr FieldName<Setup> kFields[] = {{kInterval, &Setup::txtDailyCompounding}};

template <Unit AUnit>
constexpr OptionName<Setup> CompoundingOption(const char* control) {
  return {control, [](const Setup& setup) { return setup.compounding == AUnit; },
          [](Setup& setup) { ChooseCompounding(setup, AUnit); }};
}

template <int Days>
constexpr OptionName<Setup> YearOption(const char* control) {
  return {control, [](const Setup& setup) { return setup.year.days == Days; },
          [](Setup& setup) { ChooseYearDays(setup, Days); }};
}

template <bool Counts>
constexpr OptionName<Setup> LeapDayOption(const char* control) {
  return {control, [](const Setup& setup) { return setup.year.countsLeapDay == Counts; },
          [](Setup& setup) { setup.year.countsLeapDay = Counts; }};
}

constexpr OptionName<Setup> kOptions[] = {
    CompoundingOption<Unit::None>("optICNone"),
    CompoundingOption<Unit::Days>("optICDays"),
    CompoundingOption<Unit::Months>("optICMonths"),
    CompoundingOption<Unit::Years>("optICYears"),
    PlainOption<&Setup::kind, AccountKind::Regular, Setup>("optRegNoDisc"),
    PlainOption<&Setup::kind, AccountKind::Stepped, Setup>("optStepRate"),
    PlainOption<&Setup::kind, AccountKind::TierA, Setup>("optTierA"),
    PlainOption<&Setup::kind, AccountKind::TierB, Setup>("optTierB"),
    PlainOption<&Setup::withdrawal, Unit::None, Setup>("optRINotReq"),
    PlainOption<&Setup::withdrawal, Unit::Days, Setup>("OptRIDays"),
    PlainOption<&Setup::withdrawal, Unit::Months, Setup>("optRIMonths"),
    YearOption<365>("optDY365"),
    YearOption<366>("optDY366"),
    LeapDayOption<true>("optLYYes"),
    LeapDayOption<false>("optLYNo"),
};

/// The interval as a whole number; nothing where it is not read: without compounding, and for a
/// text that is no number, which is not refused but counts as 1.
std::optional<double> Interval(const Setup& setup) {
  const auto number =
      setup.compounding == Unit::None ? std::nullopt : setup.txtDailyCompounding.Number();
  return number ? std::optional(RoundToDecimals(*number, 0)) : std::nullopt;
}

/// What the checks look at.
struct Checked {
  const Setup& setup;
  std::optional<double> interval = Interval(setup);

  bool IsOpen(const char*) const { return true; }
};

bool Everyone(const Checked&) {
  return true;
}
bool HasInterval(const Checked& c) {
  return c.interval.has_value();
}
bool HasIntervalOfMonths(const Checked& c) {
  return HasInterval(c) && c.setup.compounding == Unit::Months;
}
bool WithdrawsMonthlyFromDays(const Checked& c) {
  return HasInterval(c) && c.setup.compounding == Unit::Days && c.setup.withdrawal == Unit::Months;
}
bool IsMethodB(const Checked& c) {
  return c.setup.kind == AccountKind::TierB;
}
bool HasNoKind(const Checked& c) {
  return !c.setup.kind;
}
bool IsNoInterval(const Checked& c) {
  return !(*c.interval >= 0 && *c.interval <= INT16_MAX);
}
bool IsNoPartOfAYear(const Checked& c) {
  // The periods per year, 12 / N, are defined for these only.
  constexpr double kMonths[] = {1, 2, 3, 4, 6, 12};
  return std::ranges::find(kMonths, *c.interval) == std::end(kMonths);
}
bool IsAboveOne(const Checked& c) {
  return *c.interval > 1;
}
bool IsMonthsFromMonths(const Checked& c) {
  return c.setup.compounding == Unit::Months && c.setup.withdrawal == Unit::Months;
}

constexpr OrderedCheck<Checked> kChecks[] = {
    {Everyone, HasNoKind, "Please select an Account Type.", "", MessageIcon::None},
    {HasInterval, IsNoInterval, "Please enter a valid compounding interval.", kInterval},
    {HasIntervalOfMonths, IsNoPartOfAYear,
     "Months between compounding must be 1, 2, 3, 4, 6 or 12.", kInterval},
    {WithdrawsMonthlyFromDays, IsAboveOne,
     "Withdrawals measured in months need compounding every day or by months.", kInterval},
    {IsMethodB, IsMonthsFromMonths, "Months/Months is not in production yet", ""},
};

}  // namespace

std::span<const FieldName<Setup>> Setup::Fields() {
  return kFields;
}

std::span<const OptionName<Setup>> Setup::Options() {
  return kOptions;
}

void ChooseCompounding(Setup& setup, Unit unit) {
  setup.compounding = unit;
  if (unit != Unit::None) setup.txtDailyCompounding.text = "1";
  // Withdrawals are measured anew, but days offer what was chosen already.
  if (unit != Unit::Days) setup.withdrawal = Unit::None;
  const bool keepsLeapDay = setup.year.days == 365 && unit != Unit::Days && unit != Unit::None;
  setup.year = {365, keepsLeapDay && setup.year.countsLeapDay};
}

void ChooseYearDays(Setup& setup, int days) {
  setup.year = {days, days == 366};
}

Setup EmptiedSetup(Setup setup) {
  ChooseCompounding(setup, Unit::None);
  setup.txtDailyCompounding.text.clear();
  return setup;
}

SetupGroups GroupsOf(const Setup& setup) {
  const bool byDaysOrMonths = setup.compounding == Unit::Days || setup.compounding == Unit::Months;
  return {.interval = setup.compounding != Unit::None,
          .year = setup.compounding != Unit::Years,
          .withdrawal = byDaysOrMonths,
          .withdrawalByDays = setup.compounding == Unit::Days};
}

IntervalCaptions CaptionsOf(const Setup& setup) {
  switch (setup.compounding) {
    case Unit::None:
      return {};
    case Unit::Days:
      return {"Number Of Days Between Compounding       :", "( e.g., 1 = Daily Compounding )"};
    case Unit::Months:
      return {"Number Of Months Between Compounding   :",
              "( e.g., 1 = Monthly   3 = Quarterly   6 = Semi-Annually )"};
    case Unit::Years:
      return {"Number Of Years Between Compounding      :", "( e.g.,  1 = 365 Days )"};
  }
  return {};
}

std::optional<Refusal> CheckSetup(const Setup& setup) {
  return FirstFailure<Checked>(kChecks, {setup});
}

int PeriodLength(const Setup& setup) {
  return std::max(1, static_cast<int>(Interval(setup).value_or(1)));
}

AccountTerms TermsOf(const Setup& setup) {
  return {.compounding = {setup.compounding, PeriodLength(setup)},
          .withdrawal = setup.withdrawal,
          .year = setup.year};
}

}  // namespace corvane
