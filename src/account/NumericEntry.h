#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "account/Refusal.h"

namespace corvane {

/// What a typed character or a pasted text meets in a numeric field: the field's text and its
/// selection, which begins at the cursor where nothing is selected.
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

/// The number that a copied text (UTF-8) stands for, as it would be typed: "$1,234.56" gives
/// "1234.56". Blanks of every kind, tabs and line ends around the number are dropped, a dollar sign
/// from amounts ("bal", "userint"), a percent sign from percentages ("int", "apy"), and commas that
/// part threes of digits from all but percentages. Nothing for every text that may mean something
/// else, such as "1.234,56", "1,23", "1 2", "(5.00)" and an empty one.
std::optional<std::string> CleanPastedNumber(std::string_view pasted, const std::string& kind);

/// CleanPastedNumber, but nothing either where the field would no longer hold a number.
std::optional<std::string> PastedNumber(const TypedInto& field, std::string_view pasted,
                                        const std::string& kind);

/// What is said of a paste that a numeric field refused.
inline constexpr const char* kNumberNotPasted =
    "The pasted text was not taken over: it is no plain number such as 1234.56.";

}  // namespace corvane
