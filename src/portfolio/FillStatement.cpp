#include "portfolio/FillStatement.h"

#include <algorithm>

namespace corvane {

namespace {

using Entry = StatementEntry;

constexpr OptionWord kSetupWords[] = {
    {Column::Kind, "regular", "optRegNoDisc"},  {Column::Kind, "stepped", "optStepRate"},
    {Column::Kind, "tier-a", "optTierA"},       {Column::Kind, "tier-b", "optTierB"},
    {Column::Compounding, "none", "optICNone"}, {Column::Compounding, "days", "optICDays"},
    {Column::Year, "365", "optDY365"},          {Column::Year, "366", "optDY366"},
    {Column::CountFeb29, "yes", "opt229yes"},   {Column::CountFeb29, "no", "opt229no"},
};

constexpr OptionWord kEntryWords[] = {
    {Column::Method, "daily", "optDailyBal"},
    {Column::Method, "adb", "optADB"},
};

const OptionWords<StatementSetup>& WordsOf(const StatementSetup&) {
  static const OptionWords<StatementSetup> words(kSetupWords);
  return words;
}

const OptionWords<Entry>& WordsOf(const Entry&) {
  static const OptionWords<Entry> words(kEntryWords);
  return words;
}

using EntryColumn = FieldColumn<Entry>;

constexpr EntryColumn kEntryColumns[] = {
    {Column::MinimumAdb, &Entry::txtMinADB, "txtMinADB"},
    {Column::MinimumDaily, &Entry::txtMinDBal, "txtMinDBal"},
    {Column::DisclosedApy, &Entry::txtDClApy, "txtDClApy"},
    {Column::DailyRateFactor, &Entry::txtDRFactor, "txtDRFactor"},
    {Column::Days, &Entry::txtLedgerdays, "txtLedgerdays"},
};

constexpr EntryColumn kFigureColumns[] = {
    {Column::AverageBalance, &Entry::txtADBLedgerBalance, "txtADBLedgerBalance"},
    {Column::Interest, &Entry::txtIntAmt, "txtIntAmt"},
};

Refusal DayRefusal(const DayRow& row, const std::string& what) {
  return {"Line " + std::to_string(row.line) + " of the daily balances: " + what};
}

class Filling {
 public:
  explicit Filling(const AccountRows& account) : account_(account), row_(account.rows.front()) {}

  FilledStatement Result() {
    if (TakeSetup() && TakeTierTable() && TakeEntry() && TakeDays()) Calculate();
    return std::move(filled_);
  }

 private:
  bool Goes() const { return !filled_.told.refusal; }
  std::string_view Cell(Column column) const { return row_.Cell(column); }

  bool TakeSetup() {
    StatementSetup choices = StatementSetupAtStart();
    for (const Column column : {Column::Kind, Column::Compounding}) Choose(choices, column);
    TakeField(choices.txtDCompounding, Column::Every);
    for (const Column column : {Column::Year, Column::CountFeb29}) Choose(choices, column);
    const bool hasFormula = !Cell(Column::AdditionalDays).empty();
    if (hasFormula && choices.OffersAdditionalFormula()) ChooseAdditionalFormula(choices, true);
    TakeField(choices.txtDCPeriod, Column::AdditionalDays);
    if (!Goes()) return false;
    CheckOutcome outcome = ContinueSetup(filled_.check, choices);
    filled_.told.Add(outcome.notice);
    if (outcome.refusal) filled_.check.setup = choices;
    return !filled_.told.Refuses(std::move(outcome.refusal));
  }

  template <class Values>
  void Choose(Values& values, Column column) {
    if (Goes()) filled_.told.Refuses(WordsOf(values).Choose(Cell(column), column, values));
  }

  void TakeField(Field& field, Column column) {
    if (!Goes() || Cell(column).empty()) return;
    if (field.enabled) {
      field.text = Cell(column);
    } else {
      filled_.told.Refuses(CheckClosed(Cell(column), field.text, column));
    }
  }

  bool TakeTierTable() {
    if (!IsTiered(filled_.check.setup.kind)) return true;
    filled_.check.tiers = TierTableOf(account_.rows, filled_.told);
    if (Goes()) filled_.check.tiers = WithoutUnusedTiers(filled_.check.tiers);
    return Goes();
  }

  bool TakeEntry() {
    StatementCheck& check = filled_.check;
    Entry& entry = check.entry;
    entry = PresentEntry(check.setup, entry);
    ChooseMethod(entry);
    entry.txtDateStart.text = DateText(Cell(Column::StartDate));
    entry.txtDateEnd.text = DateText(Cell(Column::EndDate));
    for (const EntryColumn& column : kEntryColumns) Type(entry, column);
    if (!IsTiered(check.setup.kind)) Type(entry, {Column::Rate, &Entry::txtIntRate, "txtIntRate"});
    if (!Goes()) return false;
    FollowChanges(check);
    return CountDays();
  }

  /// A method that the account demands stands already.
  void ChooseMethod(Entry& entry) {
    if (!LocksMethod(filled_.check.setup)) return Choose(entry, Column::Method);
    const std::string_view stands = WordsOf(entry).ChosenWord(Column::Method, entry);
    filled_.told.Refuses(CheckClosed(Cell(Column::Method), stands, Column::Method));
  }

  void Type(Entry& entry, const EntryColumn& column) {
    TypeCell(entry, column, Cell(column.column), filled_.told);
  }

  /// Days that the row leaves out are counted from its dates, as by the calendar.
  bool CountDays() {
    const bool hasDates = !Cell(Column::StartDate).empty() && !Cell(Column::EndDate).empty();
    if (!Cell(Column::Days).empty() || !hasDates) return true;
    StatementCheck& check = filled_.check;
    return !filled_.told.Refuses(
        CountPeriod(check.setup.year, check.entry, PeriodCaller::Calendar));
  }

  bool Passes(CheckOutcome outcome) {
    filled_.told.Add(outcome.notice);
    if (filled_.told.Refuses(std::move(outcome.refusal))) return false;
    filled_.told.Add(DaysNotice(filled_.check.setup.year, filled_.check.entry));
    return true;
  }

  bool TakeDays() {
    StatementCheck& check = filled_.check;
    if (!account_.days || account_.days->rows.empty()) return true;
    if (!Passes(StartCompute(check, BalanceColumn::Ledger))) return false;
    const auto first = ParseDate(DateText(account_.days->rows.front().date));
    DailyBalances daily = DaysOf(check, BalanceColumn::Ledger, first.value_or(Date{}));
    if (!TypeDays(daily)) return false;
    FillRates(daily);
    const auto computed = ComputeAdb(daily);
    if (const auto* refusal = std::get_if<Refusal>(&computed)) {
      return !filled_.told.Refuses(*refusal);
    }
    filled_.computedAverage = std::get<ComputedDays>(computed).averageBalance;
    FinishCompute(check, daily, std::get<ComputedDays>(computed));
    return true;
  }

  bool TypeDays(DailyBalances& daily) {
    std::vector<bool> typed(daily.days.size());
    for (const DayRow& row : account_.days->rows) {
      if (filled_.told.Refuses(TypeDay(daily, row, typed))) return false;
    }
    for (int page = 1; Goes() && page <= 3; ++page) filled_.told.Refuses(CheckPage(daily, page));
    const auto question = EmptyDaysQuestion(daily);
    if (Goes() && question) filled_.told.Refuses(Refusal{*question});
    return Goes();
  }

  /// Days of other periods of the account are left alone.
  std::optional<Refusal> TypeDay(DailyBalances& daily, const DayRow& row,
                                 std::vector<bool>& typed) {
    if (*row.damage) return DayRefusal(row, row.damage);
    const auto date = ParseDate(DateText(row.date));
    if (!date) return DayRefusal(row, "\"" + row.date + "\" is no date.");
    const int place = DaysBetween(daily.start, *date);
    if (place < 0 || place >= static_cast<int>(daily.days.size())) return std::nullopt;
    const auto day = static_cast<std::size_t>(place);
    if (typed[day]) return DayRefusal(row, "The day stands there twice.");
    typed[day] = true;
    TakeDay(daily, day,
            {Typed(row.balance, kDayBalanceDecimals, filled_.told),
             Typed(row.rate, kDayRateDecimals, filled_.told)});
    return std::nullopt;
  }

  void Calculate() {
    StatementCheck& check = filled_.check;
    for (const EntryColumn& column : kFigureColumns) Type(check.entry, column);
    if (Goes()) Passes(CalculateStatement(check));
  }

  const AccountRows& account_;
  const PortfolioRow& row_;
  FilledStatement filled_;
};

}  // namespace

FilledStatement FillStatement(const AccountRows& account) {
  return Filling(account).Result();
}

}  // namespace corvane
