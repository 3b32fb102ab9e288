#include "account/Note.h"

#include <cmath>

#include "support/NumberText.h"
#include "support/Rounding.h"

namespace corvane {

namespace {

constexpr double kBinaryNoise = 1e-6;

/// Where figures follow, the text ends in what they are.
constexpr std::pair<NoteKind, std::string_view> kTexts[] = {
    {NoteKind::RatePaidOut,
     "The term is over one year, and the interest is paid out as often as it compounds. Appendix "
     "A, Part I.E allows the interest rate to be disclosed as the APY:"},
    {NoteKind::RateIfPaidOut,
     "The term is over one year, and the interest does not compound. Appendix A, Part I.E allows "
     "the interest rate to be disclosed as the APY if the interest is paid out at least once a "
     "year:"},
    {NoteKind::CompositePaidOut,
     "The term is over one year, and the interest is paid out as often as it compounds. Appendix "
     "A, Part I.E allows the composite rate, weighted by days, to be disclosed as the APY:"},
    {NoteKind::CompositeIfPaidOut,
     "The term is over one year, and the interest does not compound. Appendix A, Part I.E allows "
     "the composite rate, weighted by days, to be disclosed as the APY if the interest is paid out "
     "at least once a year:"},
    {NoteKind::CompoundingByPeriods,
     "Interest compounds every {count} days and is computed with daily compounding. The APY when "
     "it compounds every {count} days:"},
    {NoteKind::YearOfMethodB,
     "Method B takes the days of the year from 29 February or from the beginning year. The APY by "
     "the account's own days in the year:"},
    {NoteKind::LengthsOfMonths,
     "The months run into another year and are counted with the lengths that they have in the "
     "beginning year. The APY by the calendar's own lengths:"},
    {NoteKind::InterestInCents,
     "The interest is rounded to cents before the APY is computed. The APY of the unrounded "
     "interest:"},
    {NoteKind::BothMinimums,
     "With both minimums and the daily balance method the interest handed back is 0.00 and has to "
     "be entered."},
    {NoteKind::PeriodsRemain,
     "Periods computed: {count} of {all}. The APY is not yet that of the whole term."},
};

std::string_view TextOf(NoteKind kind) {
  for (const auto& [known, text] : kTexts) {
    if (known == kind) return text;
  }
  return "";
}

void Replace(std::string& text, std::string_view name, int number) {
  for (auto at = text.find(name); at != std::string::npos; at = text.find(name)) {
    text.replace(at, name.size(), std::to_string(number));
  }
}

}  // namespace

std::optional<NoteFigure> FigureApart(double computed, double other, double disclosed,
                                      double least) {
  const double rounded = RoundToCents(other);
  if (std::fabs(rounded - computed) < least - kBinaryNoise) return std::nullopt;
  NoteFigure figure{"", computed, rounded, std::nullopt};
  const Verdict verdict = CheckApy(disclosed, rounded);
  if (verdict != CheckApy(disclosed, computed)) figure.turnsTo = verdict;
  return figure;
}

std::string NoteLead(const Note& note) {
  std::string text(TextOf(note.kind));
  Replace(text, "{count}", note.count);
  Replace(text, "{all}", note.all);
  return text;
}

std::string FigureText(const NoteFigure& figure) {
  std::string text = figure.place.empty() ? "" : figure.place + ": ";
  text += FormatFixed2(figure.other) + "% beside " + FormatFixed2(figure.computed) + "%.";
  if (figure.turnsTo == Verdict::Ok) text += " This would be OK.";
  if (figure.turnsTo == Verdict::Violation) text += " This would be an APY VIOLATION.";
  return text;
}

std::string NoteText(const Note& note) {
  std::string text = NoteLead(note);
  for (const NoteFigure& figure : note.figures) text += " " + FigureText(figure);
  return text;
}

std::string NotesOfLine(Notes notes, int number) {
  std::string text;
  for (Note& note : notes) {
    const bool isOfAll = note.figures.empty();
    std::erase_if(note.figures, [number](const NoteFigure& f) { return f.number != number; });
    const bool concerns = isOfAll ? number == 1 : !note.figures.empty();
    if (concerns) text += (text.empty() ? "" : " ") + NoteText(note);
  }
  return text;
}

}  // namespace corvane
