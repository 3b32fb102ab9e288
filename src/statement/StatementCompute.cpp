#include "statement/StatementCompute.h"

#include "statement/EntryValidation.h"
#include "statement/PeriodicRateFactor.h"

namespace corvane {

namespace {

constexpr const char* kSteppedMinimums =
    "                       For Variable Rate Accounts\n"
    "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
    "                             Please try again";

/// With basis 2 the interest is the collected column's; the ledger button leaves it alone.
bool TakesInterest(const SessionRecord& session, BalanceColumn column) {
  return column == BalanceColumn::Collected || session.BalanceBasisCode != 2;
}

/// An average below a minimum daily balance that stands alone leaves the interest to be typed.
bool IsBelowSoleDailyMinimum(const SessionRecord& session, const StatementEntry& entry) {
  return session.BalanceBasisCode != 2 && session.ComputedAdb < session.MinDailyBal &&
         session.MinDailyBal > 0 && session.MinAdb == 0 && !entry.optADB;
}

}  // namespace

BeforeCompute Remember(const SessionRecord& session, const StatementEntry& entry) {
  return {.session = session, .interestText = entry.txtIntAmt.text};
}

CheckOutcome StartCompute(SessionRecord& session, StatementEntry& entry, BalanceColumn column) {
  CheckOutcome outcome = CheckEntries(session, entry);
  if (outcome.refusal) return outcome;
  StoreEntries(session, entry);
  if (IsSteppedWithMinimumAdbOnly(session)) {
    outcome.refusal = Refusal{.text = kSteppedMinimums, .field = "txtMinADB"};
    return outcome;
  }
  if (TakesInterest(session, column)) entry.txtIntAmt.text = "0.00";
  session.LedgerBasis = column == BalanceColumn::Ledger;
  Check_DRF(session, entry);
  session.AdbComputed = 1;
  session.StatementDays = WholeNumber(DaysInUse(entry, column).text).value_or(0);
  return outcome;
}

void FinishCompute(const SessionRecord& session, StatementEntry& entry, BalanceColumn column) {
  AdbField(entry, column).text = FormatFixed2(session.ComputedAdb);
  if (!TakesInterest(session, column)) return;
  entry.txtIntAmt.text = IsBelowSoleDailyMinimum(session, entry)
                             ? std::string{}
                             : FormatFixed2(session.InterestAmount);
}

void CancelCompute(SessionRecord& session, StatementEntry& entry, const BeforeCompute& before) {
  const bool detail = session.DetailData;
  session = before.session;
  // What a fresh set of days ended stays ended.
  session.DetailData = detail && before.session.DetailData;
  session.ComputeFlag = true;
  entry.txtIntAmt.text = before.interestText;
}

}  // namespace corvane
