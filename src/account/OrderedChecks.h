#pragma once

#include <optional>
#include <span>

#include "account/Refusal.h"

namespace corvane {

/// One check of a sequence: who takes part, when it fails, what the message box says, and which
/// control gets the focus.
template <class Subject>
struct OrderedCheck {
  bool (*takesPart)(const Subject&);
  bool (*fails)(const Subject&);
  const char* message;
  const char* field;
  MessageIcon icon = MessageIcon::Exclamation;
};

/// The refusal of the first check that fails, in the order of the table. A check whose field is
/// disabled does not take part: `subject.IsOpen(control)` tells, and is asked last, for it looks
/// the field up by its name.
template <class Subject>
std::optional<Refusal> FirstFailure(std::span<const OrderedCheck<Subject>> checks,
                                    const Subject& subject) {
  for (const OrderedCheck<Subject>& check : checks) {
    if (check.takesPart(subject) && check.fails(subject) && subject.IsOpen(check.field)) {
      return Refusal{check.message, check.field, kKeyEntryError, check.icon};
    }
  }
  return std::nullopt;
}

}  // namespace corvane
