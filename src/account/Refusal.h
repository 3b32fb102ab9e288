#pragma once

#include <optional>
#include <string>

#include "formulas/Outcome.h"

namespace corvane {

enum class MessageIcon { None, Exclamation };

inline constexpr const char* kKeyEntryError = "Key Entry Error";

/// Why an operation was not carried out: what the message box says and which field gets the focus
/// (its control name, empty for none). The core returns refusals; windows show them.
struct Refusal {
  std::string text;
  std::string field = {};
  std::string title = kKeyEntryError;
  MessageIcon icon = MessageIcon::Exclamation;
};

/// What checks report: a notice is shown first and stops nothing, a refusal does.
struct CheckOutcome {
  std::optional<Refusal> notice = {};
  std::optional<Refusal> refusal = {};
};

/// What is said when a formula has no result.
Refusal RefusalOf(Failure failure);

/// A year of 366 days always counts 29 February: what is said where the choice was "No".
Refusal LeapDayNotice();

}  // namespace corvane
