#include "statement/StatementCalculation.h"

#include <cmath>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/ApyEarned.h"
#include "formulas/CheckApy.h"
#include "formulas/RoundValue.h"
#include "statement/BalanceBasis.h"
#include "statement/DailyHandBack.h"
#include "statement/EntryValidation.h"
#include "statement/PeriodicRateFactor.h"

namespace corvane {

namespace {

/// What the checks that follow the storing look at.
struct Stored {
  const SessionRecord& session;
  const StatementEntry& entry;

  bool LacksAverage(BalanceColumn column) const {
    return BasisColumn(session) == column && !(AdbField(entry, column).Value() > 0);
  }
  bool LacksInterest() const { return !entry.txtIntAmt.IsNumber() || entry.txtIntAmt.Value() < 0; }
};

constexpr EntryCheck<Stored> kMinimumChecks[] = {
    {[](const Stored& s) { return IsSteppedWithMinimumAdbOnly(s.session); },
     "For Variable Rate Accounts\nMinimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
     "Please try again",
     "txtMinADB"},
};

constexpr EntryCheck<Stored> kResultChecks[] = {
    {[](const Stored& s) { return s.LacksAverage(BalanceColumn::Ledger); },
     "Please enter an ADB Ledger balance > 0 to continue", "txtADBLedgerBalance"},
    {[](const Stored& s) { return s.LacksAverage(BalanceColumn::Collected); },
     "Please enter an ADB Collected balance > 0 to continue", "txtADBCollectedBalance"},
    {[](const Stored& s) { return s.entry.optADB && s.LacksInterest(); },
     "Please enter a valid interest for ADB Method", "txtIntAmt"},
    {[](const Stored& s) { return s.LacksInterest(); },
     "Please enter a valid interest in for Daily Balance Method", "txtIntAmt"},
};

void StoreChoices(SessionRecord& session, const StatementEntry& entry) {
  StoreEntries(session, entry);
  session.LedgerCollectedYes = entry.optLColl_Yes;
  session.LedgerAdbYes = entry.optLADBYes;
  session.DailyRateFactor = entry.txtDRFactor.text;
}

void StoreFigures(SessionRecord& session, const StatementEntry& entry) {
  session.BalOption3 = entry.optADB;
  SetBalanceBasis(session, entry);
  session.LedgerDays = entry.txtLedgerdays.Value();
  session.AdbLedgerBal = entry.txtADBLedgerBalance.Value();
  session.CollectedDays = entry.txtColDays.Value();
  session.AdbCollectedBal = entry.txtADBCollectedBalance.Value();
  session.InterestAmount = entry.txtIntAmt.Value();
  Check_DRF(session, entry);
}

double ApyOf(const SessionRecord& session) {
  const bool ledger = BasisColumn(session) == BalanceColumn::Ledger;
  const double balance = ledger ? session.AdbLedgerBal : session.AdbCollectedBal;
  const double days = ledger ? session.LedgerDays : session.CollectedDays;
  const double yearDays = session.CountLeapDay ? 366 : 365;
  if (!session.AdditionalApy) return ApyEarned(session.InterestAmount, balance, days, yearDays);
  return ApyEarnedAdditional(session.InterestAmount, balance, days, yearDays,
                             session.CompoundingPeriodDays);
}

std::optional<Refusal> StoreResult(SessionRecord& session, const StatementEntry& entry) {
  RoundValue(session, session.InterestAmount, 2);
  double apy = ApyOf(session);
  if (!std::isfinite(apy)) {
    Refusal refusal = NotComputable();
    refusal.field = "txtIntAmt";
    return refusal;
  }
  session.ComputedApy = RoundValue(session, apy, 2);
  CheckApy(session, session.StmtDisclosedApy, session.ComputedApy);
  if (!DetailFits(session, entry)) session.DetailData = false;
  return std::nullopt;
}

std::optional<Refusal> StoreAndCompute(SessionRecord& session, const StatementEntry& entry) {
  const Stored stored{session, entry};
  StoreChoices(session, entry);
  if (auto refusal = FirstFailure<Stored>(kMinimumChecks, stored)) return refusal;
  StoreFigures(session, entry);
  if (auto refusal = FirstFailure<Stored>(kResultChecks, stored)) return refusal;
  return StoreResult(session, entry);
}

}  // namespace

CheckOutcome CalculateStatement(SessionRecord& session, StatementEntry& entry) {
  CheckOutcome outcome = CheckEntries(session, entry);
  if (!outcome.refusal) outcome.refusal = StoreAndCompute(session, entry);
  return outcome;
}

}  // namespace corvane
