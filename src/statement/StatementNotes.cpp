#include "statement/StatementNotes.h"

namespace corvane {

namespace {

constexpr double kLeastOfCents = 0.02;

bool HandsNoInterestBack(const StatementEntry& entry) {
  return entry.txtMinADB.Value() > 0 && entry.txtMinDBal.Value() > 0 && !entry.UsesAdb();
}

std::optional<NoteFigure> ExactFigure(const StatementCheck& check) {
  const Field& interest = check.entry.txtIntAmt;
  if (!interest.workedOut || interest.IsEmpty()) return std::nullopt;
  return FigureApart(check.result->apy, ApyOf(check, check.handed.amount),
                     check.entry.txtDClApy.Value(), kLeastOfCents);
}

}  // namespace

Notes NotesOf(const StatementCheck& check) {
  if (!check.result) return {};
  Notes notes;
  if (HandsNoInterestBack(check.entry)) notes.push_back({NoteKind::BothMinimums});
  if (auto figure = ExactFigure(check)) {
    notes.push_back({NoteKind::InterestInCents, {std::move(*figure)}});
  }
  return notes;
}

}  // namespace corvane
