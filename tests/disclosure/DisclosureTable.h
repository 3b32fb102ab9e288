#pragma once

#include <map>
#include <utility>

#include "CheckTable.h"
#include "disclosure/DisclosureCalculation.h"
#include "disclosure/DisclosureNotes.h"
#include "disclosure/EntrySequence.h"

namespace corvane {

/// "year Tier 1: 5.39/5.41, Tier 2: 5.61/5.63 OK".
inline std::string Short(const Note& note) {
  const std::map<NoteKind, std::string> names = {
      {NoteKind::RatePaidOut, "rate"},
      {NoteKind::RateIfPaidOut, "rate-if"},
      {NoteKind::CompositePaidOut, "composite"},
      {NoteKind::CompositeIfPaidOut, "composite-if"},
      {NoteKind::CompoundingByPeriods, "every-" + std::to_string(note.count) + "-days"},
      {NoteKind::YearOfMethodB, "year"},
      {NoteKind::LengthsOfMonths, "months"},
      {NoteKind::InterestInCents, "cents"},
      {NoteKind::PeriodsRemain,
       "periods " + std::to_string(note.count) + " of " + std::to_string(note.all)}};
  std::string text = names.at(note.kind);
  for (const auto& [place, computed, other, turnsTo, number] : note.figures) {
    if (&place != &note.figures.front().place) text += ",";
    text += place.empty() ? " " : " " + place + ": ";
    text += FormatFixed2(other) + "/" + FormatFixed2(computed);
    if (turnsTo) text += *turnsTo == Verdict::Ok ? " OK" : " VIOLATION";
  }
  return text;
}

/// A person at the windows of a disclosure, without the windows. Tiers are 5.25 % up to $2,500 and
/// 5.50 % above.
class DisclosurePerson {
 public:
  void Begin() {
    check_ = {};
    check_.tiers = {2, {{{"5.25", "2500"}, {"5.5", ""}}}};
  }

  /// Chooses an option, types into a field, or goes on by "Next".
  bool Put(const std::string& name, const std::string& text) {
    if (name == "Next") return Next(), true;
    if (!corvane::Put(check_.setup, name, text)) return corvane::Put(entry_, name, text);
    entry_ = PresentEntry(check_);
    return true;
  }

  const DisclosureCheck& Check() const { return check_; }

  /// Why the last Next was refused, or the notes on its result.
  std::string Noted() const {
    std::string text = refused_ ? Said(refused_) : "";
    for (const Note& note : NotesOf(check_)) text += (text.empty() ? "" : " & ") + Short(note);
    return text.empty() ? "none" : text;
  }

 private:
  void Next() {
    if (check_.completed >= std::max(1, EntryCount(check_))) check_.completed = 0;
    refused_ = AttemptCalculation(check_, entry_).refusal;
    if (check_.completed < EntryCount(check_)) entry_ = PresentEntry(check_);
  }

  DisclosureCheck check_;
  DisclosureEntry entry_;
  std::optional<corvane::Refusal> refused_;
};

/// The person as a table of checks takes it; `after` is called after every Next.
inline CheckedValues ValuesOf(
    DisclosurePerson& person, std::function<void()> after = [] {}) {
  const auto put = [&person, after](const std::string& name, const std::string& text) {
    const bool known = person.Put(name, text);
    if (name == "Next") after();
    return known;
  };
  return {.begin = [&person] { person.Begin(); },
          .put = put,
          .said = [&person] { return person.Noted(); },
          .shown = [](const std::string&) { return ""; }};
}

}  // namespace corvane
