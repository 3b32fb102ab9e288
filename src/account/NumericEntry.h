#pragma once

#include <optional>
#include <string>

#include "account/Refusal.h"

namespace corvane {

/// What a typed character meets in a numeric field: the field's text and its selection.
struct TypedInto {
  std::u16string text;
  int selectionStart = 0;
  int selectionLength = 0;
};

/// True when the character may be typed: a backspace, a digit, or a point or minus sign that the
/// text left beside the selection does not hold yet. Its place is not looked at; FixMinusSign and
/// LimitDecimals see to that once the text has changed.
bool FilterNumericKey(char32_t code, const TypedInto& field);

/// The text without its first minus sign when that is not the first character.
std::u16string FixMinusSign(const std::u16string& text);

/// How many decimals a field takes, and the kind of its message.
struct DecimalLimit {
  const char* control;
  int decimals;
  const char* kind;
};

/// What LimitDecimals made of a text: the text as it may stay and, if it was cut, the message.
struct LimitedText {
  std::u16string text;
  std::optional<Refusal> message;
};

/// Cuts the text to a number of decimals. The kind ("bal", "int", "userint" or "apy") chooses the
/// word that the message starts with.
LimitedText LimitDecimals(const std::u16string& text, int maximum, const std::string& kind);

}  // namespace corvane
