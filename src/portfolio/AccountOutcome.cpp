#include "portfolio/AccountOutcome.h"

#include <algorithm>

#include "disclosure/DisclosureNotes.h"
#include "disclosure/EntrySequence.h"
#include "portfolio/FillDisclosure.h"
#include "portfolio/FillStatement.h"
#include "statement/StatementNotes.h"

namespace corvane {

namespace {

void Refuse(AccountOutcome& outcome, const AccountRows& account, std::size_t row,
            const std::string& why) {
  outcome.isRefused = true;
  std::string& message = outcome.rows.at(row).message;
  if (!message.empty()) message += ' ';
  message += "Line " + std::to_string(account.rows[row].line) + ": " + why;
}

void Tell(AccountOutcome& outcome, const AccountRows& account, const Told& told) {
  outcome.rows.front().message = told.notices;
  if (told.refusal) Refuse(outcome, account, told.row, told.refusal->text);
}

Figures FiguresOf(const ResultRow& row) {
  return {row.interest, row.apy, row.disclosedApy, row.verdict};
}

/// By method B the entries of a row are the low and the high end of its tier.
void PutFigures(AccountOutcome& outcome, const DisclosureCheck& check) {
  int entry = 0;
  for (const ResultRow& row : check.result->rows) {
    ++entry;
    RowOutcome& place = outcome.rows.at(static_cast<std::size_t>(row.number - 1));
    const bool isHighEnd =
        check.setup.kind == AccountKind::TierB && row.number > 1 && !IsLowEnd(entry);
    (isHighEnd ? place.highEnd : place.figures) = FiguresOf(row);
  }
}

void PutNotes(AccountOutcome& outcome, const Notes& notes) {
  if (notes.empty()) return;
  int number = 0;
  for (RowOutcome& row : outcome.rows) row.note = NotesOfLine(notes, ++number);
}

void TakeDisclosure(AccountOutcome& outcome, const AccountRows& account) {
  const FilledDisclosure filled = FillDisclosure(account.rows);
  outcome.kind = filled.check.setup.kind.value_or(AccountKind::Regular);
  Tell(outcome, account, filled.told);
  if (outcome.isRefused) return;
  PutFigures(outcome, filled.check);
  PutNotes(outcome, NotesOf(filled.check));
}

void TakeStatement(AccountOutcome& outcome, const AccountRows& account) {
  const FilledStatement filled = FillStatement(account);
  outcome.isStatement = true;
  outcome.kind = filled.check.setup.kind;
  Tell(outcome, account, filled.told);
  outcome.rows.front().average = filled.computedAverage;
  if (outcome.isRefused) return;
  const StatementResult& result = filled.check.result.value();
  outcome.rows.front().figures = {result.interest, result.apy, filled.check.entry.txtDClApy.Value(),
                                  result.verdict};
  PutNotes(outcome, NotesOf(filled.check));
}

bool IsViolation(const RowOutcome& row) {
  return row.figures.verdict == Verdict::Violation || row.highEnd.verdict == Verdict::Violation;
}

void TakeCheck(AccountOutcome& outcome, const AccountRows& account) {
  const PortfolioRow& first = account.rows.front();
  const std::string_view check = first.Cell(Column::Check);
  if (IsStatement(first)) return TakeStatement(outcome, account);
  if (check.empty() || IsWord(check, kDisclosure)) return TakeDisclosure(outcome, account);
  constexpr OptionWord kChecks[] = {{Column::Check, kDisclosure, ""},
                                    {Column::Check, kStatement, ""}};
  Refuse(outcome, account, 0, NoWordOf(Column::Check, kChecks).text);
}

}  // namespace

AccountOutcome CheckAccount(const AccountRows& account) {
  AccountOutcome outcome;
  outcome.rows.resize(account.rows.size());
  for (std::size_t row = 0; row < account.rows.size(); ++row) {
    if (*account.rows[row].damage) Refuse(outcome, account, row, account.rows[row].damage);
  }
  if (!outcome.isRefused) TakeCheck(outcome, account);
  outcome.isViolation = !outcome.isRefused && std::ranges::any_of(outcome.rows, IsViolation);
  return outcome;
}

}  // namespace corvane
