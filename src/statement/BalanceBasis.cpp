#include "statement/BalanceBasis.h"

#include "account/SessionRecord.h"

namespace corvane {

namespace {

void EmptyLedger(StatementEntry& entry, bool enabled) {
  entry.txtLedgerdays = {.text = {}, .enabled = enabled};
  entry.txtADBLedgerBalance = {.text = {}, .enabled = enabled};
  entry.cmdComputeLADB = enabled;
}

void EmptyCollected(StatementEntry& entry, bool daysEnabled, bool enabled) {
  entry.txtColDays = {.text = {}, .enabled = daysEnabled};
  entry.txtADBCollectedBalance = {.text = {}, .enabled = enabled};
  entry.cmdComputeCADB = enabled;
}

void SelectLedgerAdb(StatementEntry& entry, bool yes) {
  entry.optLADBYes = yes;
  entry.optLADBNo = !yes;
}

void TakeChoice(SessionRecord& session, const StatementEntry& entry) {
  session.DetailData = false;
  SetBalanceBasis(session, entry);
}

}  // namespace

void SetBalanceBasis(SessionRecord& session, const StatementEntry& entry) {
  session.LedgerCollectedYes = entry.optLColl_Yes;
  session.LedgerAdbYes = entry.optLADBYes;
  session.BalanceBasisCode = 1;
  if (!entry.optLColl_Yes) session.BalanceBasisCode = entry.optLADBNo ? 3 : 2;
}

BalanceColumn BasisColumn(const SessionRecord& session) {
  return session.BalanceBasisCode == 3 ? BalanceColumn::Collected : BalanceColumn::Ledger;
}

bool BasisUses(const SessionRecord& session, BalanceColumn column) {
  return session.BalanceBasisCode == 2 || column == BasisColumn(session);
}

StatementField& DaysField(StatementEntry& entry, BalanceColumn column) {
  return column == BalanceColumn::Ledger ? entry.txtLedgerdays : entry.txtColDays;
}

StatementField& AdbField(StatementEntry& entry, BalanceColumn column) {
  return column == BalanceColumn::Ledger ? entry.txtADBLedgerBalance : entry.txtADBCollectedBalance;
}

const StatementField& AdbField(const StatementEntry& entry, BalanceColumn column) {
  return column == BalanceColumn::Ledger ? entry.txtADBLedgerBalance : entry.txtADBCollectedBalance;
}

const StatementField& DaysInUse(const StatementEntry& entry, BalanceColumn column) {
  const bool collected = column == BalanceColumn::Collected && entry.txtColDays.enabled;
  return collected ? entry.txtColDays : entry.txtLedgerdays;
}

void ChooseLedgerEqualsCollected(SessionRecord& session, StatementEntry& entry, bool yes) {
  entry.optLColl_Yes = yes;
  entry.optLColl_No = !yes;
  entry.Frame4 = !yes;
  SelectLedgerAdb(entry, true);
  EmptyLedger(entry, true);
  EmptyCollected(entry, false, !yes);
  TakeChoice(session, entry);
}

void ChooseLedgerAdb(SessionRecord& session, StatementEntry& entry, bool yes) {
  SelectLedgerAdb(entry, yes);
  EmptyLedger(entry, yes);
  const bool collected = !yes || entry.optLColl_No;
  EmptyCollected(entry, collected, collected);
  TakeChoice(session, entry);
}

}  // namespace corvane
