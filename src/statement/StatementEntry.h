#pragma once

#include <optional>
#include <span>
#include <string>

#include "account/Field.h"
#include "account/NumericEntry.h"
#include "account/Refusal.h"
#include "formulas/StatementAccount.h"
#include "statement/StatementSetup.h"
#include "support/Dates.h"

namespace corvane {

enum class BalanceColumn { Ledger, Collected };

/// What the APY rests on. With LedgerAverage the ledger column gives the average and the collected
/// column the interest.
enum class BalanceBasis {
  Equal,            ///< ledger and collected balances are equal
  LedgerAverage,    ///< they differ, and the ledger average is used
  CollectedAverage  ///< they differ, and the collected average is used
};

/// The fields and options of the statement period window, named as its controls. A new one is
/// empty, with ledger and collected balances equal and no method chosen.
struct StatementEntry {
  Field txtDateStart{.text = std::string(kEmptyDateMask)};
  Field txtDateEnd{.text = std::string(kEmptyDateMask)};
  Field txtMinADB;
  Field txtMinDBal;
  Field txtDClApy;
  Field txtIntRate;
  Field txtDRFactor;
  Field txtLedgerdays;
  Field txtADBLedgerBalance;
  Field txtColDays{.text = {}, .enabled = false};
  Field txtADBCollectedBalance{.text = {}, .enabled = false};
  Field txtIntAmt;
  std::optional<BalanceMethod> method;
  BalanceBasis basis = BalanceBasis::Equal;

  static std::span<const FieldName<StatementEntry>> Fields();
  static std::span<const DecimalLimit> Decimals();
  static std::span<const OptionName<StatementEntry>> Options();

  bool UsesAdb() const { return method == BalanceMethod::AverageDailyBalance; }
  /// The average of a column, and the days field that counts for it: its own while it is enabled,
  /// else the ledger's.
  const Field& Average(BalanceColumn column) const;
  Field& Average(BalanceColumn column);
  const Field& Days(BalanceColumn column) const;
};

// What choosing "Ledger = Collected" and "Ledger ADB" does to the two columns.
void ChooseLedgerEqualsCollected(StatementEntry& entry, bool yes);
void ChooseLedgerAdb(StatementEntry& entry, bool yes);

/// The column whose average and days the APY is computed on.
BalanceColumn BasisColumn(BalanceBasis basis);
/// Whether the basis uses a column at all.
bool BasisUses(BalanceBasis basis, BalanceColumn column);
/// Whether the days of a column give the interest beside the average.
bool GivesInterest(BalanceBasis basis, BalanceColumn column);

/// lblIntType: names the method by which the interest amount came about.
std::string InterestTypeText(const StatementEntry& entry);

/// lblIntNote: what stands beside an interest field that a change of the terms emptied; else empty.
std::string InterestNoteText(const StatementEntry& entry);

/// What the period window shows when it opens: the method that the account demands, a rate for
/// regular accounts only, and the default daily rate factor in an empty field.
StatementEntry PresentEntry(const StatementSetup& setup, StatementEntry entry);

/// Selects the method that a single minimum, a stepped account or the additional formula demands.
StatementEntry WithDemandedMethod(const StatementSetup& setup, StatementEntry entry);

/// What is told of a daily rate factor while it is typed, once it is long enough to be whole.
std::optional<Refusal> FactorChanged(const StatementEntry& entry);

}  // namespace corvane
