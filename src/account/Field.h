#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "support/NumberText.h"

namespace corvane {

/// A text field: what was typed, as it was typed, and whether it can be typed into. Only an enabled
/// field takes part in checks.
struct Field {
  std::string text;
  bool enabled = true;
  /// The program worked the text out from other entries and follows their changes. What a person
  /// types stays.
  bool workedOut = false;

  bool IsEmpty() const { return Trim(text).empty(); }
  bool IsNumber() const { return IsNumeric(text); }
  /// Nothing when the field holds no number.
  std::optional<double> Number() const { return NumberOf(text); }
  /// The number in the field, 0 when it holds none.
  double Value() const { return NumericValue(text); }
  bool operator==(const Field&) const = default;
};

/// A field of a window's values and the name of its control.
template <class Values>
struct FieldName {
  const char* control;
  Field Values::*field;
};

/// An option of a window: whether the values have it chosen, and what choosing it does to them.
template <class Values>
struct OptionName {
  const char* control;
  bool (*isChosen)(const Values&);
  void (*choose)(Values&);
};

/// An option that stands for one value of a member and changes nothing else.
template <auto Member, auto Value, class Values>
constexpr OptionName<Values> PlainOption(const char* control) {
  return {control, [](const Values& values) { return values.*Member == Value; },
          [](Values& values) { values.*Member = Value; }};
}

/// The control name of a field; empty for none.
template <class Values>
const char* NameOf(Field Values::*field) {
  for (const FieldName<Values>& known : Values::Fields()) {
    if (known.field == field) return known.control;
  }
  return "";
}

/// Whether a control takes entries: true for one that is no text field.
template <class Values>
bool IsOpen(const Values& values, std::string_view control) {
  for (const FieldName<Values>& known : Values::Fields()) {
    if (control == known.control) return (values.*known.field).enabled;
  }
  return true;
}

}  // namespace corvane
