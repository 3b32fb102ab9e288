#include "reports/DisclosureReport.h"

#include "disclosure/DisclosureNotes.h"
#include "reports/EnteredValues.h"
#include "reports/HtmlText.h"
#include "reports/ReportTags.h"
#include "reports/RuleText.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr const char* kNotYet = "N/A";

std::string CompoundingTerm(const DisclosureSetup& setup) {
  return setup.compounding == Unit::None ? "None" : std::to_string(PeriodLength(setup));
}

const char* WithdrawalText(Unit withdrawal) {
  return withdrawal == Unit::None ? "Not Required" : UnitText(withdrawal);
}

std::string LabelledLine(std::string_view label, double number) {
  return "<br><b>" + std::string(label) + "</b>" + FormatWhole(number);
}

/// The withdrawals stand at the end of the line with the days of the year: how many, and how far
/// apart where that was entered.
std::string WithdrawalLines(Unit unit, const DisclosureEntry& entry) {
  const double periods = entry.txtWdrwlPeriods.Value();
  const double between = entry.txtBtwnReqIntWdrwl.Value();
  if (periods == 0) return "";
  std::string lines = LabelledLine("Required Interest Withdrawals: ", periods);
  if (between != 0) {
    lines += LabelledLine(std::string(UnitText(unit)) + " Between Req'd Interest Withdrawals: ",
                          between);
  }
  return lines + "<br>";
}

/// Withdrawals are those of the newest period or tier.
Tags TagsOf(const AccountHeader& header, const DisclosureCheck& check, const Date& today) {
  const DisclosureResult& result = check.result.value();
  Tags tags = CommonTags(header, result.factorDays, today);
  tags["^drf^"].lineEnd =
      WithdrawalLines(check.setup.withdrawal, check.entries.at(result.rows.size() - 1));
  tags.insert({
      {"^MainHeading^", {AccountTypeHeading(check.setup.kind.value())}},
      {"^acctnum^", {EscapeHtml(header.holder)}},
      {"^intcmpd^", {UnitText(check.setup.compounding)}},
      {"^intwd^", {WithdrawalText(check.setup.withdrawal)}},
      {"^cmpdterm^", {CompoundingTerm(check.setup)}},
      {"^PerTier^", {kLineNoHeading}},
      {"^rule^", {DisclosureRule(check)}},
      {"^verdict^", {VerdictSentence(result)}},
      {"^notes^", {NotesHtml(NotesOf(check))}},
  });
  tags.merge(EnteredTags(check));
  return tags;
}

std::string Row(const std::string& cells) {
  return std::string(kRowStart).append(cells).append(kRowEnd);
}

std::string RegularRow(const DisclosureEntry& entry, const ResultRow& row, int lineNo) {
  const bool isOk = row.verdict.value() == Verdict::Ok;
  const char* verdict = VerdictText(*row.verdict);
  return Row(PlainCell(std::to_string(lineNo)) + PlainCell(DollarText(entry.txtBal.Value())) +
             PlainCell(CellText(entry.txtIntRateA.text) + "%") +
             PlainCell(CellText(entry.txtTerm.text)) + PlainCell(DollarText(row.interest)) +
             PlainCell(CellText(entry.txtDiscAPY.text) + "%") +
             PlainCell(FormatGrouped2(row.apy.value()) + "%") +
             (isOk ? BlackCell(verdict) : RedCell(verdict)));
}

std::string PercentText(double percent) {
  return FormatRate(percent) + "%";
}

constexpr std::size_t kRatesOnALine = 5;

/// The rates of all tiers up to this one: "5.25/5.5%". Behind every fifth rate the line may break.
std::string ScheduleText(const std::vector<double>& rates) {
  std::string text;
  for (std::size_t k = 0; k < rates.size(); ++k) {
    if (k > 0) text += k % kRatesOnALine == 0 ? "/<wbr>" : "/";
    text += FormatPlain(rates[k]);
  }
  return text + "%";
}

/// The seven cells of a result row before its verdict.
std::string FigureCells(const ResultRow& row, const std::string& rate) {
  return PlainCell(std::to_string(row.number)) +
         (row.balance ? PlainCell(DollarText(*row.balance)) : std::string(kEmptyCell)) +
         PlainCell(rate) + PlainCell(FormatTerm(row.term)) + PlainCell(DollarText(row.interest)) +
         PlainCell(PercentText(row.disclosedApy)) +
         PlainCell(row.apy ? PercentText(*row.apy) : kNotYet);
}

/// Only the newest period has a verdict.
std::string SteppedVerdictCell(const std::optional<Verdict>& verdict) {
  if (!verdict) return std::string(kEmptyCell);
  return *verdict == Verdict::Ok ? PlainCell(VerdictText(*verdict)) : BoldVerdictCell(*verdict);
}

std::string UnfilledRow() {
  const std::string blank = PlainCell("");
  return Row(blank + std::string(kEmptyCell) + blank + blank + blank + blank + blank +
             std::string(kEmptyCell));
}

/// The period to be entered next shows as an unfilled row, but never one beyond the last.
Rows SteppedRows(const DisclosureCheck& check) {
  Rows rows;
  for (const ResultRow& row : check.result->rows) {
    rows.push_back(
        Row(FigureCells(row, PercentText(row.rates.at(0))) + SteppedVerdictCell(row.verdict)));
  }
  const int periods = WholeNumber(check.entries.at(0).txtTierPerNum.text).value_or(0);
  if (static_cast<int>(rows.size()) < periods) rows.push_back(UnfilledRow());
  return rows;
}

Rows TierRows(const DisclosureCheck& check) {
  const bool byMethodB = check.setup.kind == AccountKind::TierB;
  Rows rows;
  for (const ResultRow& row : check.result->rows) {
    const std::string rate = byMethodB ? ScheduleText(row.rates) : PercentText(row.rates.at(0));
    rows.push_back(Row(FigureCells(row, rate) + BoldVerdictCell(row.verdict.value())));
  }
  return rows;
}

MarkedRows RowsOf(const DisclosureCheck& check) {
  if (check.setup.IsTiered()) return SameRows(kRowMarker, TierRows(check));
  if (check.setup.kind == AccountKind::Stepped) return SameRows(kRowMarker, SteppedRows(check));
  return {kRowMarker, [entry = check.entries.at(0), row = check.result->rows.at(0)](int lineNo) {
            return Rows{RegularRow(entry, row, lineNo)};
          }};
}

}  // namespace

ReportContent DisclosureReport(const AccountHeader& header, const DisclosureCheck& check,
                               const Date& today) {
  return {TagsOf(header, check, today), {RowsOf(check)}};
}

}  // namespace corvane
