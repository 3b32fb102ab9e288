#include "statement/StatementEntry.h"

#include "account/DailyRateFactor.h"

namespace corvane {

namespace {

using Entry = StatementEntry;

constexpr FieldName<Entry> kFields[] = {
    {"txtDateStart", &Entry::txtDateStart},
    {"txtDateEnd", &Entry::txtDateEnd},
    {"txtMinADB", &Entry::txtMinADB},
    {"txtMinDBal", &Entry::txtMinDBal},
    {"txtDClApy", &Entry::txtDClApy},
    {"txtIntRate", &Entry::txtIntRate},
    {"txtDRFactor", &Entry::txtDRFactor},
    {"txtLedgerdays", &Entry::txtLedgerdays},
    {"txtADBLedgerBalance", &Entry::txtADBLedgerBalance},
    {"txtColDays", &Entry::txtColDays},
    {"txtADBCollectedBalance", &Entry::txtADBCollectedBalance},
    {"txtIntAmt", &Entry::txtIntAmt},
};

constexpr OptionName<Entry> kOptions[] = {
    PlainOption<&Entry::method, BalanceMethod::DailyBalance, Entry>("optDailyBal"),
    PlainOption<&Entry::method, BalanceMethod::AverageDailyBalance, Entry>("optADB"),
    {"optLColl_Yes", [](const Entry& entry) { return entry.basis == BalanceBasis::Equal; },
     [](Entry& entry) { ChooseLedgerEqualsCollected(entry, true); }},
    {"optLColl_No", [](const Entry& entry) { return entry.basis != BalanceBasis::Equal; },
     [](Entry& entry) { ChooseLedgerEqualsCollected(entry, false); }},
    {"optLADBYes", [](const Entry& entry) { return entry.basis != BalanceBasis::CollectedAverage; },
     [](Entry& entry) { ChooseLedgerAdb(entry, true); }},
    {"optLADBNo", [](const Entry& entry) { return entry.basis == BalanceBasis::CollectedAverage; },
     [](Entry& entry) { ChooseLedgerAdb(entry, false); }},
};

void EmptyLedger(Entry& entry, bool enabled) {
  entry.txtLedgerdays = {.text = {}, .enabled = enabled};
  entry.txtADBLedgerBalance = {.text = {}, .enabled = enabled};
}

void EmptyCollected(Entry& entry, bool daysEnabled, bool averageEnabled) {
  entry.txtColDays = {.text = {}, .enabled = daysEnabled};
  entry.txtADBCollectedBalance = {.text = {}, .enabled = averageEnabled};
}

constexpr DecimalLimit kDecimals[] = {
    {"txtADBLedgerBalance", 2, "bal"}, {"txtADBCollectedBalance", 2, "bal"},
    {"txtMinADB", 2, "bal"},           {"txtMinDBal", 2, "bal"},
    {"txtIntRate", 4, "int"},          {"txtDClApy", 2, "apy"},
    {"txtIntAmt", 2, "userint"},
};

}  // namespace

std::span<const FieldName<Entry>> StatementEntry::Fields() {
  return kFields;
}

std::span<const DecimalLimit> StatementEntry::Decimals() {
  return kDecimals;
}

std::span<const OptionName<Entry>> StatementEntry::Options() {
  return kOptions;
}

const Field& StatementEntry::Average(BalanceColumn column) const {
  return column == BalanceColumn::Ledger ? txtADBLedgerBalance : txtADBCollectedBalance;
}

Field& StatementEntry::Average(BalanceColumn column) {
  return column == BalanceColumn::Ledger ? txtADBLedgerBalance : txtADBCollectedBalance;
}

const Field& StatementEntry::Days(BalanceColumn column) const {
  return column == BalanceColumn::Collected && txtColDays.enabled ? txtColDays : txtLedgerdays;
}

void ChooseLedgerEqualsCollected(StatementEntry& entry, bool yes) {
  entry.basis = yes ? BalanceBasis::Equal : BalanceBasis::LedgerAverage;
  EmptyLedger(entry, true);
  EmptyCollected(entry, false, !yes);
}

void ChooseLedgerAdb(StatementEntry& entry, bool yes) {
  entry.basis = yes ? BalanceBasis::LedgerAverage : BalanceBasis::CollectedAverage;
  EmptyLedger(entry, yes);
  EmptyCollected(entry, true, true);
}

BalanceColumn BasisColumn(BalanceBasis basis) {
  return basis == BalanceBasis::CollectedAverage ? BalanceColumn::Collected : BalanceColumn::Ledger;
}

bool BasisUses(BalanceBasis basis, BalanceColumn column) {
  return basis == BalanceBasis::LedgerAverage || column == BasisColumn(basis);
}

bool GivesInterest(BalanceBasis basis, BalanceColumn column) {
  return column == BalanceColumn::Collected || basis != BalanceBasis::LedgerAverage;
}

std::string InterestTypeText(const StatementEntry& entry) {
  return entry.method == BalanceMethod::DailyBalance
             ? "Interest Amount (Daily Balance Method)     :"
             : "Interest Amount (ADB Method)               :";
}

std::string InterestNoteText(const StatementEntry& entry) {
  const bool ended = entry.txtIntAmt.workedOut && entry.txtIntAmt.IsEmpty();
  return ended ? "terms changed: compute or enter again" : "";
}

StatementEntry PresentEntry(const StatementSetup& setup, StatementEntry entry) {
  if (LocksMethod(setup)) entry.method = BalanceMethod::DailyBalance;
  entry.txtIntRate.enabled = setup.kind == AccountKind::Regular;
  if (!entry.txtIntRate.enabled) entry.txtIntRate.text.clear();
  if (entry.txtDRFactor.text.empty()) entry.txtDRFactor.text = DefaultFactor(setup.year.days);
  return entry;
}

StatementEntry WithDemandedMethod(const StatementSetup& setup, StatementEntry entry) {
  const bool minimumAdb = entry.txtMinADB.Value() > 0;
  const bool minimumDaily = entry.txtMinDBal.Value() > 0;
  if (LocksMethod(setup)) {
    entry.method = BalanceMethod::DailyBalance;
  } else if (minimumAdb != minimumDaily) {
    entry.method = minimumAdb ? BalanceMethod::AverageDailyBalance : BalanceMethod::DailyBalance;
  }
  return entry;
}

std::optional<Refusal> FactorChanged(const StatementEntry& entry) {
  constexpr std::size_t kWholeLength = 5;
  const std::string& text = entry.txtDRFactor.text;
  if (text.size() < kWholeLength || !entry.txtIntRate.enabled) return std::nullopt;
  if (Trim(text).substr(0, 2).find('/') == 1) return std::nullopt;
  return Refusal{"Please enter the valid Daily Rate factor", "txtDRFactor"};
}

}  // namespace corvane
