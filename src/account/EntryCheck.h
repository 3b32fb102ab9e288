#pragma once

#include <optional>
#include <span>

#include "account/Refusal.h"

namespace corvane {

/// One entry check: when it fails, what the message box says, which field gets the focus.
template <class Entries>
struct EntryCheck {
  bool (*fails)(const Entries&);
  const char* message;
  const char* field;
};

/// The refusal of the first failing check, in the order of the table.
template <class Entries>
std::optional<Refusal> FirstFailure(std::span<const EntryCheck<Entries>> checks,
                                    const Entries& entries) {
  for (const EntryCheck<Entries>& check : checks) {
    if (check.fails(entries)) return Refusal{.text = check.message, .field = check.field};
  }
  return std::nullopt;
}

/// What checks report: a notice is shown first and stops nothing, a refusal does.
struct CheckOutcome {
  std::optional<Refusal> notice;
  std::optional<Refusal> refusal;
};

}  // namespace corvane
