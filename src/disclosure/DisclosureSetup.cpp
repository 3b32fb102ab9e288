#include "disclosure/DisclosureSetup.h"

#include <set>

#include "account/SessionRecord.h"
#include "account/SessionStart.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr const char* kInterval = "txtDailyCompounding";

bool HasNoAccountType(const AccountSetup& setup) {
  return !setup.optRegNoDisc && !setup.optStepRate && !setup.optTierA && !setup.optTierB;
}

/// A text that is no number is not refused: it becomes 0, which every computation takes as 1.
bool HasIntervalText(const AccountSetup& setup) {
  return !setup.optICNone && IsNumeric(setup.txtDailyCompounding);
}

bool HasUnusableInterval(const AccountSetup& setup) {
  if (!HasIntervalText(setup)) return false;
  const auto interval = WholeNumber(setup.txtDailyCompounding);
  return !interval || *interval < 0;
}

bool HasUnknownMonths(const AccountSetup& setup) {
  // The periods per year, 12 / N, are defined for these only.
  static const std::set<std::int16_t> months = {1, 2, 3, 4, 6, 12};
  return setup.optICMonths && HasIntervalText(setup) &&
         !months.contains(*WholeNumber(setup.txtDailyCompounding));
}

bool HasMonthlyWithdrawalsOfLongPeriods(const AccountSetup& setup) {
  return setup.optICDays && setup.optRIMonths && HasIntervalText(setup) &&
         *WholeNumber(setup.txtDailyCompounding) > 1;
}

struct SetupCheck {
  bool (*fails)(const AccountSetup&);
  const char* message;
  const char* field;
  MessageIcon icon;
};

constexpr SetupCheck kSetupChecks[] = {
    {HasNoAccountType, "Please select an Account Type.", "", MessageIcon::None},
    {HasUnusableInterval, "Please enter a valid compounding interval.", kInterval,
     MessageIcon::Exclamation},
    {HasUnknownMonths, "Months between compounding must be 1, 2, 3, 4, 6 or 12.", kInterval,
     MessageIcon::Exclamation},
    {HasMonthlyWithdrawalsOfLongPeriods,
     "Withdrawals measured in months need compounding every day or by months.", kInterval,
     MessageIcon::Exclamation},
};

}  // namespace

std::optional<Refusal> CheckSetup(const AccountSetup& setup) {
  for (const SetupCheck& check : kSetupChecks) {
    if (check.fails(setup)) return Refusal{check.message, check.field, kKeyEntryError, check.icon};
  }
  return std::nullopt;
}

void StoreSetup(SessionRecord& session, AccountSetup& setup) {
  session.PeriodCount = 0;
  if (!IsNumeric(setup.txtDailyCompounding)) setup.txtDailyCompounding = "0";
  session.CompoundNone = setup.optICNone;
  session.CompoundDays = setup.optICDays;
  session.CompoundMonths = setup.optICMonths;
  session.CompoundYears = setup.optICYears;
  session.AcctRegular = setup.optRegNoDisc;
  session.AcctStepped = setup.optStepRate;
  session.AcctTierA = setup.optTierA;
  session.AcctTierB = setup.optTierB;
  session.ReqWdrwlNotReq = setup.optRINotReq;
  session.ReqWdrwlDays = setup.OptRIDays;
  session.ReqWdrwlMonths = setup.optRIMonths;
  session.CompoundingDays = WholeNumber(setup.txtDailyCompounding).value_or(0);
  session.RoundNotTruncate = true;
  session.DaysInYear365 = setup.optDY365;
  session.DaysInYear366 = setup.optDY366;
}

bool KeepsEntry(const SessionRecord& session) {
  return session.EntryDataKept && session.AcctTypeCode == session.PrevAcctTypeCode;
}

std::optional<Refusal> CheckMonthsByMonths(const SessionRecord& session) {
  if (!session.CompoundMonths || !session.ReqWdrwlMonths || !session.AcctTierB) return std::nullopt;
  return Refusal{"Months/Months is not in production yet", ""};
}

std::optional<Refusal> StoreDaysInYear(SessionRecord& session, AccountSetup& setup) {
  const bool forcesCount = setup.optDY366 && setup.optLYNo;
  if (setup.optDY366) {
    setup.optLYYes = true;
    setup.optLYNo = false;
  }
  session.DaysInYear = setup.optDY366 ? 366.0 : 365.0;
  session.CountLeapDay = setup.optLYYes;
  if (!forcesCount) return std::nullopt;
  return Refusal{"Count 2/29 will be changed to Yes, No is not allowed for 366 days.", "",
                 kKeyEntryError, MessageIcon::None};
}

void ForgetEntries(SessionRecord& session) {
  session.EntryDataKept = false;
  session.TierFormLoaded = false;
  session.TierPeriodCounter = 0;
  session.EntryNavState = 0;
  session.PeriodCount = 0;
  ClearTierTables(session);
}

void ResetForNewAccount(SessionRecord& session) {
  ForgetEntries(session);
  session.TierNumber = 0;
  session.PeriodNumber = 0;
  session.PrevAcctTypeCode = 1;
  session.CompoundNone = true;
  session.CompoundDays = false;
  session.CompoundMonths = false;
  session.CompoundYears = false;
  session.TierPeriodCounter = 1;
}

}  // namespace corvane
