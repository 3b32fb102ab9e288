#include "portfolio/FillDisclosure.h"

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/EntryTerm.h"

namespace corvane {

namespace {

using Entry = DisclosureEntry;
using Rows = std::span<const PortfolioRow>;

constexpr OptionWord kWords[] = {
    {Column::Kind, "regular", "optRegNoDisc"},
    {Column::Kind, "stepped", "optStepRate"},
    {Column::Kind, "tier-a", "optTierA"},
    {Column::Kind, "tier-b", "optTierB"},
    {Column::Compounding, "none", "optICNone"},
    {Column::Compounding, "days", "optICDays"},
    {Column::Compounding, "months", "optICMonths"},
    {Column::Compounding, "years", "optICYears"},
    {Column::Year, "365", "optDY365"},
    {Column::Year, "366", "optDY366"},
    {Column::CountFeb29, "yes", "optLYYes"},
    {Column::CountFeb29, "no", "optLYNo"},
    {Column::Withdrawals, "none", "optRINotReq"},
    {Column::Withdrawals, "days", "OptRIDays"},
    {Column::Withdrawals, "months", "optRIMonths"},
};

const OptionWords<DisclosureSetup>& Words() {
  static const OptionWords<DisclosureSetup> words(kWords);
  return words;
}

using EntryColumn = FieldColumn<Entry>;

/// What every row says of an entry beside its dates.
const EntryColumn kEntryColumns[] = {
    {Column::Rate, &Entry::txtIntRateA},
    {Column::DailyRateFactor, &Entry::txtDailyRateFactor},
    {Column::WithdrawalPeriods, &Entry::txtWdrwlPeriods},
    {Column::WithdrawalDistance, &Entry::txtBtwnReqIntWdrwl},
    {Column::Term, &Entry::txtTerm},
};
const EntryColumn kDisclosedApy = {Column::DisclosedApy, &Entry::txtDiscAPY};
const EntryColumn kDisclosedApyHigh = {Column::DisclosedApyHigh, &Entry::txtDiscAPY};
const EntryColumn kBalance = {Column::Balance, &Entry::txtBal};

/// Facts of an account rather than choices: they are not read where the account has no use for
/// them.
const EntryColumn kCalendarColumns[] = {
    {Column::BeginMonth, &Entry::txtBeginMonth},
    {Column::BeginYear, &Entry::txtBeginYear},
};

/// Whether the setup window offers the choice that a column names.
bool IsOffered(const DisclosureSetup& setup, Column column, std::string_view word) {
  const SetupGroups groups = GroupsOf(setup);
  if (column == Column::Year || column == Column::CountFeb29) return groups.year;
  if (column != Column::Withdrawals) return true;
  return groups.withdrawal && (groups.withdrawalByDays || !IsWord(word, "days"));
}

/// Fills one account.
class Filling {
 public:
  Filling(Rows rows, FilledDisclosure& filled) : rows_(rows), filled_(filled) {}

  void Fill() {
    if (TakeSetup() && TakeTierTable()) TakeEntries();
  }

 private:
  bool Goes() const { return !filled_.told.refusal; }

  /// The choices of the setup window, in their order from its top.
  bool TakeSetup() {
    const PortfolioRow& row = rows_.front();
    DisclosureSetup choices;
    for (const Column column : {Column::Kind, Column::Compounding}) Choose(choices, row, column);
    TakeInterval(choices, row.Cell(Column::Every));
    for (const Column column : {Column::Year, Column::CountFeb29, Column::Withdrawals}) {
      Choose(choices, row, column);
    }
    if (!Goes()) return false;
    CheckOutcome outcome = ContinueSetup(filled_.check, choices);
    filled_.told.Add(outcome.notice);
    if (outcome.refusal) filled_.check.setup = choices;
    return !filled_.told.Refuses(std::move(outcome.refusal));
  }

  void Choose(DisclosureSetup& choices, const PortfolioRow& row, Column column) {
    const std::string_view cell = row.Cell(column);
    if (!Goes() || cell.empty()) return;
    filled_.told.Refuses(IsOffered(choices, column, cell)
                             ? Words().Choose(cell, column, choices)
                             : CheckClosed(cell, Words().ChosenWord(column, choices), column));
  }

  void TakeInterval(DisclosureSetup& choices, std::string_view cell) {
    Field& interval = choices.txtDailyCompounding;
    if (!Goes() || cell.empty()) return;
    if (GroupsOf(choices).interval) {
      interval.text = cell;
    } else {
      filled_.told.Refuses(CheckClosed(cell, interval.text, Column::Every));
    }
  }

  bool TakeTierTable() {
    if (!filled_.check.setup.IsTiered()) return true;
    const TierTable table = TierTableOf(rows_, filled_.told);
    if (Goes()) TakeTiers(filled_.check, WithoutUnusedTiers(table));
    if (!Goes()) filled_.check.tiers = table;
    return Goes();
  }

  void TakeEntries() {
    const DisclosureCheck& check = filled_.check;
    for (std::size_t row = 0; Goes() && row < rows_.size(); ++row) {
      const bool hasTwoEnds = check.setup.kind == AccountKind::TierB && row > 0;
      for (int end = hasTwoEnds ? 2 : 1; Goes() && end > 0; --end) {
        TakeEntry(rows_[row], hasTwoEnds && end == 2, hasTwoEnds && end == 1);
        if (!Goes()) filled_.told.row = row;
      }
    }
  }

  void TakeEntry(const PortfolioRow& row, bool isLowEnd, bool isHighEnd) {
    DisclosureCheck& check = filled_.check;
    DisclosureEntry entry = PresentEntry(check);
    const bool isFirstPeriod = check.setup.kind == AccountKind::Stepped && check.completed == 0;
    if (isFirstPeriod) entry.txtTierPerNum.text = std::to_string(rows_.size());
    TypeRow(entry, row);
    (isHighEnd ? kDisclosedApyHigh : kDisclosedApy).Type(row, entry, filled_.told);
    // The balance of a row stands at the high end of its tier.
    if (!isLowEnd) kBalance.Type(row, entry, filled_.told);
    if (!isHighEnd && !isLowEnd) CheckUnused(row, Column::DisclosedApyHigh);
    if (!check.setup.IsTiered()) CheckUnused(row, Column::NotExceeding);
    if (Goes()) {
      CountTerm(check.setup, entry);
      filled_.told.Refuses(AttemptCalculation(check, entry).refusal);
    }
    if (!Goes()) KeepEntry(check, entry);
  }

  void TypeRow(DisclosureEntry& entry, const PortfolioRow& row) {
    const bool hasDates =
        !row.Cell(Column::StartDate).empty() || !row.Cell(Column::EndDate).empty();
    // Whoever types dates empties the term that was carried over.
    if (hasDates && row.Cell(Column::Term).empty() && entry.txtTerm.enabled)
      entry.txtTerm.text = "";
    for (const EntryColumn& column : kEntryColumns) column.Type(row, entry, filled_.told);
    for (const EntryColumn& column : kCalendarColumns) {
      if ((entry.*column.field).enabled) column.Type(row, entry, filled_.told);
    }
    TypeDates(entry, row);
  }

  /// A typed term closes the dates.
  void TypeDates(DisclosureEntry& entry, const PortfolioRow& row) const {
    const bool open = TermDatesEnabled(filled_.check, entry.txtTerm);
    const bool typedOnce = !entry.tStartDate.enabled && !open;
    entry.tStartDate.enabled = entry.tEndDate.enabled = open;
    if (open && !row.Cell(Column::StartDate).empty()) {
      entry.tStartDate.text = DateText(row.Cell(Column::StartDate));
    }
    if (open && !row.Cell(Column::EndDate).empty()) {
      entry.tEndDate.text = DateText(row.Cell(Column::EndDate));
    }
    if (!open && !typedOnce) entry.tStartDate.text = entry.tEndDate.text = kEmptyDateMask;
  }

  void CheckUnused(const PortfolioRow& row, Column column) {
    if (Goes()) filled_.told.Refuses(CheckClosed(row.Cell(column), "", column));
  }

  Rows rows_;
  FilledDisclosure& filled_;
};

}  // namespace

FilledDisclosure FillDisclosure(Rows rows) {
  FilledDisclosure filled;
  Filling(rows, filled).Fill();
  return filled;
}

}  // namespace corvane
