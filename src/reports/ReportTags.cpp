#include "reports/ReportTags.h"

#include "account/DailyRateFactor.h"
#include "reports/EnteredValues.h"
#include "reports/HtmlText.h"
#include "support/NumberText.h"
#include "support/ProgramTitle.h"
#include "support/ProgramVersion.h"

namespace corvane {

namespace {

/// The figure of a tier stays together, so that those of many tiers can be read as a list.
std::string NoteHtml(const Note& note) {
  std::string html = EscapeHtml(NoteLead(note));
  for (const NoteFigure& figure : note.figures) {
    const std::string text = EscapeHtml(FigureText(figure));
    html += figure.place.empty() ? " " + text : " <span>" + text + "</span>";
  }
  return html;
}

std::string CompoundingTerm(const StatementSetup& setup) {
  return setup.compounding == Unit::None ? "" : std::to_string(CompoundingDays(setup));
}

}  // namespace

Tags CommonTags(const AccountHeader& header, double factorDays, const Date& today) {
  return {
      {"^instname^", {EscapeHtml(header.institution)}},
      {"^depname^", {EscapeHtml(header.description)}},
      {"^rundate^", {FormatDate(today)}},
      {"^drf^", {FormatPlain(factorDays)}},
      {"^program^", {std::string(kProgramTitle) + " " + kProgramVersion}},
  };
}

std::string NotesHtml(const Notes& notes) {
  if (notes.empty()) return "";
  std::string html = "<section class=\"notes\"><h2>Notes</h2><ul>";
  for (const Note& note : notes) html += "<li>" + NoteHtml(note) + "</li>";
  return html + "</ul></section>";
}

Tags StatementTags(const AccountHeader& header, const StatementCheck& check, const Date& today) {
  const auto factorDays = FactorDays(check.entry.txtDRFactor.text);
  Tags tags = CommonTags(header, factorDays.value_or(check.setup.year.days), today);
  tags.insert({
      {"^acctuser^", {EscapeHtml(header.holder)}},
      {"^acctnum^", {EscapeHtml(header.number)}},
      {"^intcalc^", {check.entry.UsesAdb() ? "ADB" : "Daily Balance"}},
      {"^intcmpd^", {UnitText(check.setup.compounding)}},
      {"^cmpdterm^", {CompoundingTerm(check.setup)}},
      {"^addapy^", {check.setup.additionalFormula ? "Additional APY" : "No Additional APY"}},
      {"^minadb^", {DollarText(check.entry.txtMinADB.Value())}},
      {"^mindbal^", {DollarText(check.entry.txtMinDBal.Value())}},
      {"^yeardays^", {std::to_string(YearDaysOf(check))}},
      {"^countleap^", {check.setup.year.countsLeapDay ? "Yes" : "No"}},
      {"^factor^", {CellText(check.entry.txtDRFactor.text)}},
      {"^tiers^", {IsTiered(check.setup.kind) ? TierTableHtml(check.tiers) : ""}},
  });
  return tags;
}

const char* AccountTypeHeading(AccountKind kind) {
  switch (kind) {
    case AccountKind::Regular:
      return "REGULAR RATE";
    case AccountKind::Stepped:
      return "STEPPED RATE";
    case AccountKind::TierA:
      return "TIERING Method A";
    case AccountKind::TierB:
      return "TIERING Method B";
  }
  return "";
}

const char* UnitText(Unit unit) {
  switch (unit) {
    case Unit::Days:
      return "Days";
    case Unit::Months:
      return "Months";
    case Unit::Years:
      return "Years";
    case Unit::None:
      break;
  }
  return "None";
}

}  // namespace corvane
