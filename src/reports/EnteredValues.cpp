#include "reports/EnteredValues.h"

#include <algorithm>

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "formulas/DisclosedYield.h"
#include "reports/HtmlText.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

std::string Counted(const std::string& number, int length, std::string_view unit) {
  if (length == 1) return number + " " + std::string(unit);
  return number + " periods of " + std::to_string(length) + " " + std::string(unit);
}

std::string TermText(const DisclosureSetup& setup, const DisclosureEntry& entry) {
  const std::string term = CellText(entry.txtTerm.text);
  switch (setup.compounding) {
    case Unit::None:
    case Unit::Days:
      return Counted(term, PeriodLength(setup), "days");
    case Unit::Months:
      return Counted(term, PeriodLength(setup), "months");
    case Unit::Years:
      return Counted(term, PeriodLength(setup), "years");
  }
  return term;
}

std::string DateText(const Field& date) {
  return ParseDate(date.text) ? date.text : "";
}

/// By days the distance is that between compoundings: the withdrawals divide the term evenly.
std::string WithdrawalText(const DisclosureSetup& setup, const DisclosureEntry& entry) {
  const double periods = entry.txtWdrwlPeriods.Value();
  const double apart = entry.txtBtwnReqIntWdrwl.Value();
  if (periods == 0) return "";
  const std::string text = FormatPlain(periods);
  if (apart == 0) return text;
  if (setup.withdrawal == Unit::Days) return text + "; days entered: " + FormatPlain(apart);
  return text + (apart == 1 ? ", every month" : ", every " + FormatPlain(apart) + " months");
}

using TextOfEntry = std::string (*)(const DisclosureSetup&, const DisclosureEntry&);

std::string StartText(const DisclosureSetup&, const DisclosureEntry& entry) {
  return DateText(entry.tStartDate);
}

std::string EndText(const DisclosureSetup&, const DisclosureEntry& entry) {
  return DateText(entry.tEndDate);
}

std::string BeginText(const DisclosureSetup&, const DisclosureEntry& entry) {
  if (entry.txtBeginMonth.IsEmpty()) return "";
  return CellText(entry.txtBeginMonth.text) + "-" + CellText(entry.txtBeginYear.text);
}

std::string FactorText(const DisclosureSetup&, const DisclosureEntry& entry) {
  return CellText(entry.txtDailyRateFactor.text);
}

/// A column of the table of entries.
struct Column {
  const char* heading;
  TextOfEntry text;
};

constexpr Column kColumns[] = {
    {"Term Entered", TermText},
    {"Start Date", StartText},
    {"End Date", EndText},
    {"Beginning Month and Year", BeginText},
    {"Daily Rate Factor", FactorText},
    {"Required Interest Withdrawals", WithdrawalText},
};

/// The columns that hold anything: what does not apply to the account is empty in all its entries.
std::vector<Column> UsedColumns(const DisclosureCheck& check) {
  std::vector<Column> columns(std::begin(kColumns), std::end(kColumns));
  std::erase_if(columns, [&check](const Column& column) {
    return std::ranges::all_of(check.entries, [&](const DisclosureEntry& entry) {
      return column.text(check.setup, entry).empty();
    });
  });
  return columns;
}

/// Lines whose entries are alike.
struct Run {
  int first, last;
  std::string cells;
};

std::vector<Run> RunsOf(const DisclosureCheck& check, const std::vector<Column>& columns) {
  std::vector<Run> runs;
  const auto& rows = check.result->rows;
  for (std::size_t k = 0; k < std::min(rows.size(), check.entries.size()); ++k) {
    std::string cells;
    for (const Column& column : columns) {
      cells += TableCell(column.text(check.setup, check.entries[k]));
    }
    const bool isAlike = !runs.empty() && runs.back().cells == cells;
    if (!isAlike) runs.push_back({rows[k].number, 0, std::move(cells)});
    runs.back().last = rows[k].number;
  }
  return runs;
}

std::string EntriesHtml(const DisclosureCheck& check) {
  const std::vector<Column> columns = UsedColumns(check);
  std::vector<std::string> headings = {"Lines"};
  for (const Column& column : columns) headings.emplace_back(column.heading);
  Rows rows;
  for (const auto& [first, last, cells] : RunsOf(check, columns)) {
    const std::string lines = std::to_string(first);
    rows.push_back(TableCell(last == first ? lines : lines + " to " + std::to_string(last)) +
                   cells);
  }
  return TableHtml("Terms As Entered", headings, rows);
}

/// "1000.00" of the row of a tier's end; blank where it has none.
std::string BoundText(const DisclosureCheck& check, int tier, bool lowEnd) {
  const auto& rows = check.result->rows;
  for (std::size_t k = 0; k < rows.size(); ++k) {
    const bool isLow = IsLowEnd(static_cast<int>(k) + 1);
    if (rows[k].number == tier && isLow == lowEnd && rows[k].balance) {
      return DollarText(*rows[k].balance);
    }
  }
  return "";
}

std::string SteppedTotalText(const DisclosureCheck& check) {
  if (check.setup.kind != AccountKind::Stepped) return "";
  double units = 0;
  for (const Deposit& period : CompletedDeposits(check)) units += period.term;
  std::string text =
      "Total of the periods: " + DollarText(check.result->interest) + " interest in ";
  if (check.setup.compounding == Unit::Years) {
    return text + FormatPlain(units * PeriodLength(check.setup)) + " years.";
  }
  const auto composite = CompositeRateOf(TermsOf(check.setup), CompletedDeposits(check));
  const auto* found = std::get_if<CompositeRate>(&composite);
  return found ? text + FormatPlain(found->days) + " days." : "";
}

}  // namespace

std::string TierTableHtml(const TierTable& table, const DisclosureCheck* check) {
  const std::vector<Tier> tiers = TiersOf(table);
  std::vector<std::string> headings = {"Tier", "Above", "Not Exceeding", "Rate Of The Tier"};
  if (check) headings.insert(headings.end(), {"Low End", "High End"});
  Rows rows;
  for (std::size_t k = 0; k < tiers.size(); ++k) {
    const int tier = static_cast<int>(k) + 1;
    const bool isLast = k + 1 == tiers.size();
    rows.push_back(TableCell(std::to_string(tier)) + TableCell(DollarText(tiers[k].above)) +
                   TableCell(isLast ? "" : DollarText(tiers[k + 1].above)) +
                   TableCell(FormatRate(tiers[k].rate) + "%"));
    if (!check) continue;
    rows.back() +=
        TableCell(BoundText(*check, tier, true)) + TableCell(BoundText(*check, tier, false));
  }
  return rows.empty() ? "" : TableHtml("Tiers", headings, rows);
}

Tags EnteredTags(const DisclosureCheck& check) {
  const bool methodB = check.setup.kind == AccountKind::TierB;
  return {
      {"^yeardays^", {FormatPlain(YearDaysOf(check))}},
      {"^countleap^", {check.setup.year.countsLeapDay ? "Yes" : "No"}},
      {"^total^", {SteppedTotalText(check)}},
      {"^entries^", {EntriesHtml(check)}},
      {"^tiers^",
       {check.setup.IsTiered() ? TierTableHtml(check.tiers, methodB ? &check : nullptr) : ""}},
  };
}

}  // namespace corvane
