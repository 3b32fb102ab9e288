#include "statement/StatementSetupStore.h"

#include <tuple>

#include "account/SessionRecord.h"

namespace corvane {

namespace {

bool IsNoDayCount(const StatementField& days) {
  return !days.IsNumber() || !IsWhole(days.Value());
}

bool IsNoInterval(const StatementField& days) {
  return IsNoDayCount(days) || days.Value() < 1 || days.Value() > INT16_MAX;
}

constexpr EntryCheck<StatementSetup> kChecks[] = {
    {[](const StatementSetup& s) {
       return s.txtDCompounding.enabled && IsNoInterval(s.txtDCompounding);
     },
     "Please enter valid number of days between compounding.", "txtDCompounding"},
    {[](const StatementSetup& s) { return s.txtDCPeriod.enabled && IsNoDayCount(s.txtDCPeriod); },
     "Please enter valid number of days in compounding period.", "txtDCPeriod"},
    {[](const StatementSetup& s) { return s.txtDCPeriod.enabled && s.txtDCPeriod.Value() < 28; },
     "Compounding Period must be greater than 27 days", "txtDCPeriod"},
    {[](const StatementSetup& s) { return s.txtDCPeriod.enabled && s.txtDCPeriod.Value() > 365; },
     "Compounding Period must be no more that 365 days", "txtDCPeriod"},
};

std::optional<Refusal> LeapDayNotice(const StatementSetup& setup) {
  if (!setup.optDY366 || !setup.opt229no) return std::nullopt;
  return Refusal{.text = "Count 2/29 will be changed to Yes, No is not allowed for 366 days.",
                 .field = {},
                 .icon = MessageIcon::None};
}

/// What an account's days and their interest depend on.
auto DescriptionOf(const SessionRecord& session) {
  return std::tuple<bool, bool, bool, bool, bool, bool, bool, bool, bool, double>(
      session.AcctRegular, session.AcctStepped, session.AcctTierA, session.AcctTierB,
      session.CompoundNone, session.CompoundDays, session.DaysInYear366, session.CountLeapDay,
      session.AdditionalApy, session.CompoundingPeriodDays);
}

void StoreDaysInYear(const StatementSetup& setup, SessionRecord& session) {
  const bool changed = bool{session.DaysInYear365} != setup.optDY365 ||
                       bool{session.DaysInYear366} != setup.optDY366;
  if (changed) session.DailyRateFactor.clear();
  session.DaysInYear365 = setup.optDY365;
  session.DaysInYear366 = setup.optDY366;
  if (setup.optDY366) session.DaysInYear = 366;
  if (setup.optDY365) session.DaysInYear = 365;
  session.CountLeapDay = setup.opt229yes;
}

void StoreAccount(const StatementSetup& setup, SessionRecord& session) {
  session.AcctTierA = setup.optTierA;
  session.AcctTierB = setup.optTierB;
  session.AcctStepped = setup.optStepRate;
  session.AcctRegular = setup.optRegNoDisc;
  session.CompoundNone = setup.optICNone;
  session.CompoundDays = setup.optICDays;
  session.CompoundMonths = false;
  session.CompoundYears = false;
  session.AdditionalApy = setup.optFormulaYes;
  session.CompoundingPeriodDays = setup.optFormulaYes ? setup.txtDCPeriod.Value() : 0;
}

}  // namespace

CheckOutcome ValidateAndStoreSetup(StatementSetup& setup, SessionRecord& session) {
  CheckOutcome outcome;
  outcome.refusal = FirstFailure<StatementSetup>(kChecks, setup);
  if (outcome.refusal) return outcome;
  outcome.notice = LeapDayNotice(setup);
  if (setup.optDY366) ChooseDaysInYear(setup, true);
  const auto before = DescriptionOf(session);
  StoreDaysInYear(setup, session);
  StoreAccount(setup, session);
  if (DescriptionOf(session) != before) session.DetailData = false;
  return outcome;
}

void StoreCompoundingDays(StatementSetup& setup, SessionRecord& session) {
  if (Trim(setup.txtDCompounding.text).empty()) setup.txtDCompounding.text = "0";
  const std::int16_t days = WholeNumber(setup.txtDCompounding.text).value_or(0);
  if (days != session.CompoundingDays) session.DetailData = false;
  session.CompoundingDays = days;
}

}  // namespace corvane
