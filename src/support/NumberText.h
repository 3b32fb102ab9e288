#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

/// Text without the blanks at its ends.
constexpr std::string_view Trim(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// The text (UTF-8) with blanks that do not break, narrow blanks and the minus sign of other
/// programs as those of the keyboard.
std::string WithKeyboardSigns(std::string_view text);

/// The number of a text that, blanks trimmed, is an optional sign, digits and at most one point,
/// with at least one digit. Thousands commas, exponents and currency signs make it no number, and
/// so does a size that a double cannot hold; the decimal point is "." in every locale.
std::optional<double> NumberOf(std::string_view text);

/// Whether the text is a number.
bool IsNumeric(std::string_view text);

/// The number that the text stands for, 0 when it is none.
double NumericValue(std::string_view text);

/// The number rounded half to even, or nothing when it is no number or does not fit 16 bits.
std::optional<std::int16_t> WholeNumber(std::string_view text);

/// WholeNumber of a value that is already a number.
std::optional<std::int16_t> WholeNumber(double value);

bool IsWhole(double value);

// The number formats of the screens and reports. All of them round by the program's one rule (an
// exact half goes to the even neighbour) and use "." whatever the locale.

std::string FormatFixed2(double value);     ///< "######0.00": 1234.5 gives 1234.50
std::string FormatGrouped2(double value);   ///< "##,##0.00": 1234.5 gives 1,234.50
std::string FormatGrouped6(double value);   ///< "##,##0.000000": the interest of a day
std::string FormatRate(double value);       ///< "######0.00##": 5 gives 5.00, 5.1234 stays
std::string FormatTerm(double value);       ///< "#.00": 0.5 gives .50
std::string FormatTwoDigits(double value);  ///< "00": 3 gives 03
std::string FormatWhole(double value);      ///< "#0": 12.4 gives 12
std::string FormatDollars(double value);    ///< "$#,###.00": -1234.5 gives -$1,234.50, 0 gives $.00
std::string FormatGroupedWhole(double value);  ///< "##,##0": 1234.5 gives 1,234

/// "##,##0": 1234 gives 1,234
std::string FormatCount(std::integral auto count) {
  return FormatGroupedWhole(static_cast<double>(count));
}

/// What is counted, and how many: "1 day", "30 days".
std::string CountText(std::integral auto count, const std::string& one) {
  return FormatCount(count) + " " + one + (count == 1 ? "" : "s");
}

/// The shortest decimal text of the value: 365 gives "365", 4.5 gives "4.5".
std::string FormatPlain(double value);

/// The "######0.00" rewrite of a field on leaving it: a text that is no number stays as typed.
std::string RewriteFixed2(const std::string& text);

}  // namespace corvane
