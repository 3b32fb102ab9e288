#include "statement/EntryValidation.h"

#include "account/SessionRecord.h"
#include "statement/InterestMethod.h"
#include "statement/MinimumBalanceRules.h"
#include "statement/PeriodicRateFactor.h"
#include "statement/StatementPeriod.h"

namespace corvane {

namespace {

using Entry = StatementEntry;

constexpr const char* kDaysMessage = "The valid Ledger Days range is 1 to 96, inclusive";

bool IsNoMinimum(const StatementField& minimum) {
  return minimum.enabled && (!minimum.IsNumber() || minimum.Value() < 0);
}

bool IsNotAboveZero(const StatementField& field) {
  return field.enabled && !(field.Value() > 0);
}

bool IsNoPeriod(const StatementField& days) {
  return days.enabled &&
         (!IsWhole(days.Value()) || days.Value() < 1 || days.Value() > kLongestPeriod);
}

bool AreBothZero(const StatementField& days, const StatementField& adb) {
  return days.enabled && days.Value() == 0 && adb.Value() == 0;
}

constexpr EntryCheck<Entry> kChecks[] = {
    {[](const Entry& e) { return IsNoMinimum(e.txtMinADB); },
     "Please enter a valid Minimum ADB amount or Zero", "txtMinADB"},
    {[](const Entry& e) { return IsNoMinimum(e.txtMinDBal); },
     "Please enter a valid Minimum daily balance or Zero", "txtMinDBal"},
    {[](const Entry& e) { return IsNotAboveZero(e.txtDClApy); },
     "Please enter a valid Disclosed APY percentage", "txtDClApy"},
    {[](const Entry& e) { return IsNotAboveZero(e.txtIntRate); },
     "Please enter a valid Interest Rate", "txtIntRate"},
    {[](const Entry& e) { return e.txtDRFactor.enabled && !FactorDays(e.txtDRFactor.text); },
     "Please enter a valid Daily Rate Factor", "txtDRFactor"},
    {[](const Entry& e) { return !e.optDailyBal && !e.optADB; },
     "Choose one of the types of the Interest Calculation.", "optDailyBal"},
    {[](const Entry& e) { return IsNoPeriod(e.txtLedgerdays); }, kDaysMessage, "txtLedgerdays"},
    {[](const Entry& e) { return IsNoPeriod(e.txtColDays); }, kDaysMessage, "txtColDays"},
    {[](const Entry& e) { return AreBothZero(e.txtLedgerdays, e.txtADBLedgerBalance); },
     "Ledger Days and Ledger ADB must not both be Zero", "txtLedgerdays"},
    {[](const Entry& e) { return AreBothZero(e.txtColDays, e.txtADBCollectedBalance); },
     "Collected Days and Collected ADB must not both be Zero", "txtColDays"},
};

}  // namespace

std::optional<Refusal> ValidateEntries(const StatementEntry& entry) {
  return FirstFailure<Entry>(kChecks, entry);
}

CheckOutcome CheckEntries(SessionRecord& session, StatementEntry& entry) {
  CheckOutcome outcome = Check_For_Errors(session, entry);
  if (outcome.refusal) return outcome;
  outcome.refusal = CheckStatementPeriod(session, entry, PeriodCaller::Button);
  if (outcome.refusal) return outcome;
  Set_Interest(session, entry, MethodChoice::FollowMinimum);
  outcome.refusal = ValidateEntries(entry);
  return outcome;
}

void StoreEntries(SessionRecord& session, const StatementEntry& entry) {
  session.MinAdb = entry.txtMinADB.Value();
  session.MinDailyBal = entry.txtMinDBal.Value();
  session.StmtDisclosedApy = entry.txtDClApy.Value();
  session.UseAdb = entry.optADB;
  session.UseDailyBal = entry.optDailyBal;
  StorePeriodStart(session, entry);
}

bool IsSteppedWithMinimumAdbOnly(const SessionRecord& session) {
  return session.AcctStepped && session.MinAdb > 0 && session.MinDailyBal == 0;
}

}  // namespace corvane
