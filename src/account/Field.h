#pragma once

#include <string>

#include "support/NumberText.h"

namespace corvane {

/// A text field as its window shows it. Only an enabled field takes part in entry checks.
struct StatementField {
  std::string text;
  bool enabled = true;

  bool IsNumber() const { return IsNumeric(text); }

  /// The number in the field, 0 when it holds none.
  double Value() const { return NumericValue(text); }
};

}  // namespace corvane
