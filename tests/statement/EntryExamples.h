#pragma once

#include <string>

#include "account/EntryCheck.h"
#include "account/SessionRecord.h"
#include "statement/StatementEntry.h"

namespace corvane {

/// The period window over a checked setup: a regular account without compounding, 365 days, whose
/// entries ($12.50 on $10,000 in 30 days) pass every check.
struct EntryExample {
  SessionRecord session;
  StatementEntry entry;

  EntryExample() {
    session.RoundingDigits = 15;
    session.AcctRegular = true;
    session.CompoundNone = true;
    session.DaysInYear365 = true;
    session.NewStatementAcct = true;
    InitStatementEntry(session, entry, true);
    entry.optADB = true;
    entry.txtMinADB.text = "0";
    entry.txtMinDBal.text = "0";
    entry.txtDClApy.text = "1.53";
    entry.txtIntRate.text = "1.5";
    entry.txtLedgerdays.text = "30";
    entry.txtADBLedgerBalance.text = "10000.00";
    entry.txtIntAmt.text = "12.50";
  }

  void Minimums(const char* adb, const char* daily) {
    entry.txtMinADB.text = adb;
    entry.txtMinDBal.text = daily;
  }
  void Stepped() {
    session.AcctRegular = false;
    session.AcctStepped = true;
    InitStatementEntry(session, entry, false);
  }
};

/// "text @ field" of a refusal or notice, empty for none.
inline std::string Told(const std::optional<Refusal>& refusal) {
  return refusal ? refusal->text + " @ " + refusal->field : std::string{};
}

}  // namespace corvane
