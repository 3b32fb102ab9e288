#include "disclosure/DisclosureNotes.h"

#include <algorithm>

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "formulas/DisclosedYield.h"

namespace corvane {

namespace {

constexpr double kLeast = 0.01;
constexpr double kLeastOfCents = 0.02;

bool PeriodsRemain(const DisclosureCheck& check) {
  return check.setup.kind == AccountKind::Stepped && check.result &&
         check.completed < EntryCount(check);
}

Note PeriodsRemainNote(const DisclosureCheck& check) {
  return {NoteKind::PeriodsRemain, {}, check.completed, EntryCount(check)};
}

/// The other APY of a row, when there is one and it differs.
std::optional<NoteFigure> FigureOfRow(const DisclosureCheck& check, std::size_t k,
                                      std::optional<double> other, double least) {
  const ResultRow& row = check.result->rows.at(k);
  if (!row.apy || !other) return std::nullopt;
  auto figure = FigureApart(*row.apy, *other, row.disclosedApy, least);
  if (!figure) return std::nullopt;
  figure->number = row.number;
  figure->place = PlaceOfRow(check, k);
  return figure;
}

// Notes by another reading of the same formulas. Each is computed only where it may differ.

/// Half a cent more or less in the interest may move an APY by a hundredth. For a balance B over D
/// days it moves the APY by no more than half a cent * 366 / D * (100 + APY) / B, and a term is no
/// shorter than its number of days or periods.
bool CentsMayShow(const DisclosureCheck& check) {
  constexpr double kMostBalanceDays = 0.005 * 366 * 100 / kLeast;
  const auto& rows = check.result->rows;
  const double first = rows.front().balance.value_or(0);
  return std::ranges::any_of(rows, [first](const ResultRow& row) {
    return row.apy &&
           row.balance.value_or(first) * row.term < kMostBalanceDays * (1 + *row.apy / 100);
  });
}
bool CompoundsByManyDays(const DisclosureCheck& check) {
  return check.setup.compounding == Unit::Days && PeriodLength(check.setup) > 1;
}
bool IsMethodB(const DisclosureCheck& check) {
  return check.setup.kind == AccountKind::TierB;
}
bool TakesAnotherYear(const DisclosureCheck& check) {
  return IsMethodB(check) && YearDaysOf(check) != check.setup.year.days;
}
/// A month has the same length in every year but for 29 February.
bool MonthsMayDiffer(const DisclosureCheck& check) {
  return check.setup.withdrawal == Unit::Months && check.setup.year.countsLeapDay;
}

struct OtherReading {
  NoteKind kind;
  bool (*concerns)(const DisclosureCheck&);
  bool Reading::*reading;
  double least;
};

constexpr OtherReading kOtherReadings[] = {
    {NoteKind::CompoundingByPeriods, CompoundsByManyDays, &Reading::compoundsByPeriods, kLeast},
    {NoteKind::YearOfMethodB, TakesAnotherYear, &Reading::ownYear, kLeast},
    {NoteKind::LengthsOfMonths, MonthsMayDiffer, &Reading::ownMonths, kLeast},
    {NoteKind::InterestInCents, CentsMayShow, &Reading::exactInterest, kLeastOfCents},
};

Note NoteBy(const DisclosureCheck& check, const OtherReading& rule) {
  Note note{rule.kind, {}, PeriodLength(check.setup)};
  AccountTerms terms = TermsOf(check.setup);
  terms.reading.*rule.reading = true;
  const auto computed = ComputeResult(check, terms);
  const auto* other = std::get_if<DisclosureResult>(&computed);
  for (std::size_t k = 0; other && k < other->rows.size(); ++k) {
    auto figure = FigureOfRow(check, k, other->rows[k].apy, rule.least);
    if (figure) note.figures.push_back(std::move(*figure));
  }
  return note;
}

// The rate as the APY, by Part I.E.

/// Whether interest may be paid out without compounding: there is none, or it is withdrawn by the
/// same measure. By method B a balance has no one rate; Part I.E names none for it.
bool MayPayRate(const DisclosureSetup& setup) {
  const bool measuresAlike = setup.withdrawal == setup.compounding;
  return setup.kind != AccountKind::TierB && (setup.compounding == Unit::None || measuresAlike);
}

/// Whether a completed entry pays its interest out each time that it compounds.
bool PaysOutEachPeriod(const DisclosureCheck& check, const Deposit& deposit) {
  const auto& [compounding, withdrawal, year, reading] = TermsOf(check.setup);
  const bool atLeastYearly = compounding.unit == Unit::Months || compounding.length <= year.days;
  return atLeastYearly && deposit.withdrawals.periods == deposit.term;
}

/// Twelve months are a year, and so are its days.
bool IsOverAYear(const AccountTerms& terms, std::span<const Deposit> deposits) {
  double units = 0;
  for (const Deposit& deposit : deposits) units += deposit.term * terms.compounding.length;
  if (terms.compounding.unit == Unit::Months) return units > 12;
  return units > (terms.year.countsLeapDay ? 366 : 365);
}

/// The composite rate of the deposits, when their term is over one year and their interest does not
/// compound in it.
std::optional<double> RateToDisclose(const DisclosureCheck& check,
                                     std::span<const Deposit> deposits) {
  const AccountTerms terms = TermsOf(check.setup);
  if (!IsOverAYear(terms, deposits)) return std::nullopt;
  const bool paidOut = std::ranges::all_of(
      deposits, [&check](const Deposit& deposit) { return PaysOutEachPeriod(check, deposit); });
  if (terms.compounding.unit != Unit::None && !paidOut) return std::nullopt;
  const auto composite = CompositeRateOf(terms, deposits);
  const auto* found = std::get_if<CompositeRate>(&composite);
  return found ? std::optional(found->percent) : std::nullopt;
}

NoteKind RateKind(const DisclosureCheck& check) {
  const bool known = check.setup.compounding != Unit::None;
  if (check.setup.kind == AccountKind::Stepped) {
    return known ? NoteKind::CompositePaidOut : NoteKind::CompositeIfPaidOut;
  }
  return known ? NoteKind::RatePaidOut : NoteKind::RateIfPaidOut;
}

Note RateNote(const DisclosureCheck& check) {
  Note note{RateKind(check)};
  if (!MayPayRate(check.setup)) return note;
  const std::vector<Deposit> deposits = CompletedDeposits(check);
  const bool stepped = check.setup.kind == AccountKind::Stepped;
  for (std::size_t k = 0; k < std::min(deposits.size(), check.result->rows.size()); ++k) {
    const std::span all(deposits);
    const auto rate = RateToDisclose(check, stepped ? all : all.subspan(k, 1));
    auto figure = FigureOfRow(check, k, rate, kLeast);
    if (figure) note.figures.push_back(std::move(*figure));
  }
  return note;
}

}  // namespace

Notes NotesOf(const DisclosureCheck& check) {
  if (!check.result) return {};
  if (PeriodsRemain(check)) return {PeriodsRemainNote(check)};
  Notes notes = {RateNote(check)};
  for (const OtherReading& rule : kOtherReadings) {
    if (rule.concerns(check)) notes.push_back(NoteBy(check, rule));
  }
  std::erase_if(notes, [](const Note& note) { return note.figures.empty(); });
  return notes;
}

std::string PeriodsRemainText(const DisclosureCheck& check) {
  return PeriodsRemain(check) ? NoteText(PeriodsRemainNote(check)) : "";
}

std::string PlaceOfRow(const DisclosureCheck& check, std::size_t row) {
  if (!check.setup.IsTiered()) return "";
  const std::string tier = "Tier " + std::to_string(check.result->rows.at(row).number);
  if (!IsMethodB(check) || row == 0) return tier;
  return tier + (IsLowEnd(static_cast<int>(row) + 1) ? ", low end" : ", high end");
}

}  // namespace corvane
