#include "statement/StatementEntry.h"

#include "account/SessionRecord.h"
#include "statement/BalanceBasis.h"
#include "statement/InterestMethod.h"
#include "statement/StatementAccount.h"

namespace corvane {

namespace {

void EmptyEntry(const SessionRecord& session, StatementEntry& entry) {
  entry = StatementEntry{};
  entry.optADB = session.UseAdb;
  entry.optDailyBal = session.UseDailyBal;
  // A new account's record still names the factor of the one before.
  if (!session.DailyBalReset) entry.txtDRFactor.text = session.DailyRateFactor;
}

/// An emptied stored factor says that the days in the year were chosen anew.
void TakeFactor(SessionRecord& session, StatementEntry& entry, bool fresh) {
  const bool takeDefault = fresh ? entry.txtDRFactor.text.empty() : session.DailyRateFactor.empty();
  if (takeDefault) entry.txtDRFactor.text = session.DaysInYear365 ? "1/365" : "1/366";
  session.DailyRateFactor = entry.txtDRFactor.text;
}

std::string KindText(RateKind kind) {
  if (kind == RateKind::TierA) return "Tier A Account";
  if (kind == RateKind::TierB) return "Tier B Account";
  return kind == RateKind::Stepped ? "Variable Rate Account" : "Regular Account";
}

}  // namespace

void InitStatementEntry(SessionRecord& session, StatementEntry& entry, bool justMade) {
  const bool fresh = justMade || session.NewStatementAcct;
  session.NewStatementAcct = false;
  if (fresh) EmptyEntry(session, entry);
  TakeFactor(session, entry, fresh);
  entry.txtIntRate.enabled = session.AcctRegular;
  entry.lblAddAPY = session.AdditionalApy;
  Set_Interest(session, entry, MethodChoice::Keep);
  SetBalanceBasis(session, entry);
}

std::string AccountInfoText(const SessionRecord& session) {
  return KindText(RateKindOf(session)) + (session.CompoundDays
                                              ? "      Interest Compounding = Days"
                                              : "      Interest Compounding = None");
}

std::string InterestTypeText(const StatementEntry& entry) {
  return entry.optDailyBal ? "Interest Amount (Daily Balance Method)     :"
                           : "Interest Amount (ADB Method)               :";
}

bool CalendarEnabled(const StatementEntry& entry) {
  return entry.txtDateStart.enabled || entry.txtDateEnd.enabled;
}

}  // namespace corvane
