#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formulas/CheckApy.h"

namespace corvane {

/// Where the program's method departs from what may be held against a figure, or where a figure is
/// not yet the account's.
enum class NoteKind {
  RatePaidOut,           ///< over a year, paid out as often as it compounds: Part I.E, the rate
  RateIfPaidOut,         ///< over a year, no compounding, pay-outs not known: Part I.E, the rate
  CompositePaidOut,      ///< as RatePaidOut, of stepped rates: their composite
  CompositeIfPaidOut,    ///< as RateIfPaidOut, of stepped rates: their composite
  CompoundingByPeriods,  ///< every N days, computed as every day
  YearOfMethodB,         ///< a year of 366 days where the account has another, or 365 for 366
  LengthsOfMonths,       ///< months of another year, as long as in the beginning year
  InterestInCents,       ///< a small amount, rounded to cents before the APY
  BothMinimums,          ///< no interest was handed back
  PeriodsRemain,         ///< stepped, not all periods computed
};

/// An APY by another reading of Appendix A.
struct NoteFigure {
  std::string place;               ///< "Tier 2, low end"; empty where the account has one APY
  double computed = 0;             ///< percent, what the program shows
  double other = 0;                ///< percent, rounded to hundredths
  std::optional<Verdict> turnsTo;  ///< the verdict on `other`, where it is not the one shown
  int number = 1;                  ///< of the period or tier
};

struct Note {
  NoteKind kind;
  std::vector<NoteFigure> figures = {};
  int count = 0;  ///< N of CompoundingByPeriods, the periods computed of PeriodsRemain
  int all = 0;    ///< all periods of PeriodsRemain
};

using Notes = std::vector<Note>;

/// The figure of a note, where it is at least `least` percentage points away from the one computed.
/// All in percent; it has no place yet.
std::optional<NoteFigure> FigureApart(double computed, double other, double disclosed,
                                      double least);

/// What a note says before its figures.
std::string NoteLead(const Note& note);

/// "Tier 1: 5.06% beside 5.13%. This would be OK."
std::string FigureText(const NoteFigure& figure);

/// The note as plain sentences: "... when it compounds every 182 days: 5.06% beside 5.13%. This
/// would be OK."
std::string NoteText(const Note& note);

/// The notes as plain sentences, with the figures of one period or tier only. What has no figures
/// is said of the first.
std::string NotesOfLine(Notes notes, int number);

}  // namespace corvane
