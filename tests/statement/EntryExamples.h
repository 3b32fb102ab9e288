#pragma once

#include <string>

#include "statement/StatementCheck.h"

namespace corvane {

/// The check of a regular account without compounding, 365 days a year, whose entries ($12.50 on
/// $10,000 in 30 days) pass every check.
struct EntryExample : StatementCheck {
  EntryExample() : StatementCheck(NewStatementCheck()) {
    entry.txtDClApy.text = "1.53";
    entry.txtIntRate.text = "1.5";
    entry.txtLedgerdays.text = "30";
    entry.txtADBLedgerBalance.text = "10000.00";
    entry.txtIntAmt.text = "12.50";
    Minimums("0", "0");
    Become(AccountKind::Regular);
  }

  void Minimums(const char* adb, const char* daily) {
    entry.txtMinADB.text = adb;
    entry.txtMinDBal.text = daily;
  }
  void Become(AccountKind kind) {
    setup.kind = kind;
    entry = PresentEntry(setup, entry);
  }
};

/// "text @ field" of a refusal or notice, empty for none.
inline std::string Told(const std::optional<Refusal>& refusal) {
  return refusal ? refusal->text + " @ " + refusal->field : std::string{};
}

}  // namespace corvane
