#include "statement/StatementSetup.h"

#include <algorithm>

#include "account/OrderedChecks.h"

namespace corvane {

namespace {

using Setup = StatementSetup;

constexpr FieldName<Setup> kFields[] = {
    {"txtDCompounding", &Setup::txtDCompounding},
    {"txtDCPeriod", &Setup::txtDCPeriod},
};

constexpr OptionName<Setup> kOptions[] = {
    PlainOption<&Setup::kind, AccountKind::Regular, Setup>("optRegNoDisc"),
    PlainOption<&Setup::kind, AccountKind::Stepped, Setup>("optStepRate"),
    PlainOption<&Setup::kind, AccountKind::TierA, Setup>("optTierA"),
    PlainOption<&Setup::kind, AccountKind::TierB, Setup>("optTierB"),
    {"optICNone", [](const Setup& setup) { return setup.compounding == Unit::None; },
     [](Setup& setup) { ChooseCompounding(setup, Unit::None); }},
    {"optICDays", [](const Setup& setup) { return setup.compounding == Unit::Days; },
     [](Setup& setup) { ChooseCompounding(setup, Unit::Days); }},
    {"optDY365", [](const Setup& setup) { return setup.year.days == 365; },
     [](Setup& setup) { ChooseYearDays(setup, 365); }},
    {"optDY366", [](const Setup& setup) { return setup.year.days == 366; },
     [](Setup& setup) { ChooseYearDays(setup, 366); }},
    {"opt229yes", [](const Setup& setup) { return setup.year.countsLeapDay; },
     [](Setup& setup) { setup.year.countsLeapDay = true; }},
    {"opt229no", [](const Setup& setup) { return !setup.year.countsLeapDay; },
     [](Setup& setup) { setup.year.countsLeapDay = false; }},
    {"optFormulaYes", [](const Setup& setup) { return setup.additionalFormula; },
     [](Setup& setup) { ChooseAdditionalFormula(setup, true); }},
    {"optFormulaNo", [](const Setup& setup) { return !setup.additionalFormula; },
     [](Setup& setup) { ChooseAdditionalFormula(setup, false); }},
};

bool Everyone(const Setup&) {
  return true;
}
bool IsNoDayCount(const Field& days) {
  return !days.IsNumber() || !IsWhole(days.Value());
}
bool IntervalUnusable(const Setup& setup) {
  const Field& days = setup.txtDCompounding;
  return IsNoDayCount(days) || days.Value() < 1 || days.Value() > INT16_MAX;
}
bool PeriodUnusable(const Setup& setup) {
  return IsNoDayCount(setup.txtDCPeriod);
}
bool PeriodBelow28(const Setup& setup) {
  return setup.txtDCPeriod.Value() < 28;
}
bool PeriodAbove365(const Setup& setup) {
  return setup.txtDCPeriod.Value() > 365;
}

constexpr OrderedCheck<Setup> kChecks[] = {
    {Everyone, IntervalUnusable, "Please enter valid number of days between compounding.",
     "txtDCompounding"},
    {Everyone, PeriodUnusable, "Please enter valid number of days in compounding period.",
     "txtDCPeriod"},
    {Everyone, PeriodBelow28, "Compounding Period must be greater than 27 days", "txtDCPeriod"},
    {Everyone, PeriodAbove365, "Compounding Period must be no more that 365 days", "txtDCPeriod"},
};

std::string KindText(AccountKind kind) {
  if (kind == AccountKind::TierA) return "Tier A Account";
  if (kind == AccountKind::TierB) return "Tier B Account";
  return kind == AccountKind::Stepped ? "Variable Rate Account" : "Regular Account";
}

}  // namespace

std::span<const FieldName<Setup>> StatementSetup::Fields() {
  return kFields;
}

std::span<const OptionName<Setup>> StatementSetup::Options() {
  return kOptions;
}

StatementSetup StatementSetupAtStart() {
  StatementSetup setup;
  ChooseCompounding(setup, Unit::Days);
  return setup;
}

void ChooseCompounding(StatementSetup& setup, Unit unit) {
  const bool days = unit == Unit::Days;
  setup.compounding = unit;
  setup.txtDCompounding = {.text = days ? "1" : "", .enabled = days};
  setup.leapDayOpen = true;
  ChooseAdditionalFormula(setup, false);
  ChooseYearDays(setup, 365);
}

void ChooseYearDays(StatementSetup& setup, int days) {
  setup.year = {.days = days, .countsLeapDay = days == 366};
}

void ChooseAdditionalFormula(StatementSetup& setup, bool yes) {
  setup.additionalFormula = yes;
  setup.txtDCPeriod.enabled = yes;
  if (!yes) setup.txtDCPeriod.text.clear();
}

std::optional<Refusal> CheckSetup(const StatementSetup& setup) {
  return FirstFailure<Setup>(kChecks, setup);
}

int CompoundingDays(const StatementSetup& setup) {
  if (setup.compounding == Unit::None) return 0;
  return std::max<int>(WholeNumber(setup.txtDCompounding.text).value_or(0), 1);
}

bool LocksMethod(const StatementSetup& setup) {
  return setup.kind == AccountKind::Stepped || setup.additionalFormula;
}

std::string AccountInfoText(const StatementSetup& setup) {
  return KindText(setup.kind) +
         "      Interest Compounding = " + (setup.compounding == Unit::Days ? "Days" : "None");
}

}  // namespace corvane
