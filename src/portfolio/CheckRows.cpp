#include "portfolio/CheckRows.h"

#include <array>

#include "disclosure/EntrySequence.h"
#include "support/Csv.h"

namespace corvane {

namespace {

/// The cells of one row.
class RowText {
 public:
  std::string& operator[](Column column) { return cells_[static_cast<std::size_t>(column)]; }
  void Put(Column column, const Field& field) {
    if (field.enabled && !field.workedOut && field.text != kEmptyDateMask) {
      (*this)[column] = field.text;
    }
  }

  std::string Line() const {
    std::string line;
    for (const std::string& cell : cells_) {
      if (&cell != &cells_.front()) line += ',';
      AppendCsvCell(line, cell, ',');
    }
    return line + "\n";
  }

 private:
  std::array<std::string, kColumns> cells_;
};

const char* WordOf(AccountKind kind) {
  constexpr const char* kWords[] = {"regular", "stepped", "tier-a", "tier-b"};
  return kWords[static_cast<std::size_t>(kind)];
}

const char* WordOf(Unit unit) {
  constexpr const char* kWords[] = {"none", "days", "months", "years"};
  return kWords[static_cast<std::size_t>(unit)];
}

/// What every row of an account says.
RowText FirstCells(const std::string& account, const AccountHeader& header, const char* check,
                   AccountKind kind) {
  RowText row;
  row[Column::Account] = account;
  row[Column::Check] = check;
  row[Column::Kind] = WordOf(kind);
  row[Column::Institution] = header.institution;
  row[Column::Description] = header.description;
  row[Column::Holder] = header.holder;
  row[Column::Number] = header.number;
  return row;
}

void PutYear(RowText& row, const YearRule& year) {
  row[Column::Year] = std::to_string(year.days);
  row[Column::CountFeb29] = year.countsLeapDay ? "yes" : "no";
}

void PutSetup(RowText& row, const DisclosureSetup& setup) {
  const SetupGroups groups = GroupsOf(setup);
  row[Column::Compounding] = WordOf(setup.compounding);
  if (groups.interval) row[Column::Every] = std::to_string(PeriodLength(setup));
  if (groups.year) PutYear(row, setup.year);
  if (groups.withdrawal) row[Column::Withdrawals] = WordOf(setup.withdrawal);
}

void PutEntry(RowText& row, const DisclosureEntry& entry, bool isHighEnd) {
  row.Put(isHighEnd ? Column::DisclosedApyHigh : Column::DisclosedApy, entry.txtDiscAPY);
  row.Put(Column::BeginMonth, entry.txtBeginMonth);
  row.Put(Column::BeginYear, entry.txtBeginYear);
  row.Put(Column::Balance, entry.txtBal);
  row.Put(Column::Rate, entry.txtIntRateA);
  row.Put(Column::StartDate, entry.tStartDate);
  row.Put(Column::EndDate, entry.tEndDate);
  const bool hasDates = !row[Column::StartDate].empty() && !row[Column::EndDate].empty();
  if (!hasDates) row.Put(Column::Term, entry.txtTerm);
  row.Put(Column::DailyRateFactor, entry.txtDailyRateFactor);
  row.Put(Column::WithdrawalPeriods, entry.txtWdrwlPeriods);
  row.Put(Column::WithdrawalDistance, entry.txtBtwnReqIntWdrwl);
}

void PutTier(RowText& row, const TierTable& tiers, int tier) {
  row[Column::Rate] = tiers.Of(tier).rate;
  if (tier < tiers.count) row[Column::NotExceeding] = tiers.Of(tier).notExceeding;
}

}  // namespace

std::string CheckFileHeader() {
  return FullHeader().text + "\n";
}

std::string RowsOf(const std::string& account, const AccountHeader& header,
                   const DisclosureCheck& check) {
  const AccountKind kind = check.setup.kind.value_or(AccountKind::Regular);
  std::string text;
  int number = 0;
  for (auto entry = check.entries.begin(); entry != check.entries.end(); ++entry) {
    RowText row = FirstCells(account, header, "disclosure", kind);
    PutSetup(row, check.setup);
    PutEntry(row, *entry, false);
    ++number;
    if (kind == AccountKind::TierB && number > 1 && entry + 1 != check.entries.end()) {
      PutEntry(row, *++entry, true);
    }
    if (check.setup.IsTiered()) PutTier(row, check.tiers, number);
    text += row.Line();
  }
  return text;
}

std::string RowsOf(const std::string& account, const AccountHeader& header,
                   const StatementCheck& check) {
  const StatementEntry& entry = check.entry;
  RowText row = FirstCells(account, header, "statement", check.setup.kind);
  row[Column::Compounding] = WordOf(check.setup.compounding);
  row.Put(Column::Every, check.setup.txtDCompounding);
  PutYear(row, check.setup.year);
  row.Put(Column::AdditionalDays, check.setup.txtDCPeriod);
  if (entry.method && !LocksMethod(check.setup)) {
    row[Column::Method] = entry.UsesAdb() ? "adb" : "daily";
  }
  const std::pair<Column, const Field&> fields[] = {
      {Column::StartDate, entry.txtDateStart},      {Column::EndDate, entry.txtDateEnd},
      {Column::MinimumAdb, entry.txtMinADB},        {Column::MinimumDaily, entry.txtMinDBal},
      {Column::DisclosedApy, entry.txtDClApy},      {Column::Rate, entry.txtIntRate},
      {Column::DailyRateFactor, entry.txtDRFactor}, {Column::Days, entry.txtLedgerdays},
  };
  for (const auto& [column, field] : fields) row.Put(column, field);
  row[Column::AverageBalance] = entry.Average(BasisColumn(entry.basis)).text;
  row[Column::Interest] = entry.txtIntAmt.text;
  if (entry.basis == BalanceBasis::CollectedAverage) row.Put(Column::Days, entry.txtColDays);
  std::string text;
  for (int tier = 1; IsTiered(check.setup.kind) && tier <= check.tiers.count; ++tier) {
    PutTier(row, check.tiers, tier);
    text += row.Line();
    row[Column::NotExceeding].clear();
  }
  return text.empty() ? row.Line() : text;
}

}  // namespace corvane
