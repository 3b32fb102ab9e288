#include "support/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>

#include "support/Rounding.h"

namespace corvane {

namespace {

/// The digits of a whole number, a point before so many of the last.
std::string WithPoint(std::uint64_t digits, int decimals, bool isNegative) {
  char text[24];
  char* const end = text + sizeof text;
  char* at = end;
  for (int place = 0; digits > 0 || place <= decimals; ++place, digits /= 10) {
    if (place == decimals && decimals > 0) *--at = '.';
    *--at = static_cast<char>('0' + digits % 10);
  }
  if (isNegative) *--at = '-';
  return std::string(at, end);
}

/// The value with so many decimals, rounded by the one rule; no locale decides its decimal point,
/// and nothing is left of the sign of a zero.
std::string FixedText(double value, int decimals) {
  constexpr double kMostExact = 4503599627370496.0;  // 2^52: a double holds all digits up to here
  constexpr double kPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
  const double rounded = RoundToDecimals(value, decimals);
  const double scaled = std::fabs(rounded) * kPowers[decimals];
  if (scaled < kMostExact) {
    const auto digits = static_cast<std::uint64_t>(scaled + 0.5);
    return WithPoint(digits, decimals, rounded < 0 && digits > 0);
  }
  char text[400];
  char* const end =
      std::to_chars(text, text + sizeof text, rounded, std::chars_format::fixed, decimals).ptr;
  return std::string(text, end);
}

/// The number text with a comma before every three digits of its whole part.
std::string Grouped(std::string text) {
  const std::size_t firstDigit = text.front() == '-' ? 1 : 0;
  for (std::size_t place = std::min(text.find('.'), text.size()); place > firstDigit + 3;) {
    place -= 3;
    text.insert(place, 1, ',');
  }
  return text;
}

/// The number of a text that is none of 15 digits or fewer but has their form.
std::optional<double> ParsedLong(std::string_view text) {
  if (text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const auto read =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  const bool outOfRange = read.ec == std::errc::result_out_of_range;
  const bool isHuge = outOfRange && text.find_first_of("123456789") < text.find('.');
  return isHuge ? std::nullopt : std::optional(value);
}

}  // namespace

std::string WithKeyboardSigns(std::string_view text) {
  constexpr std::pair<std::string_view, std::string_view> kSigns[] = {
      {"\u00a0", " "}, {"\u2007", " "}, {"\u2009", " "}, {"\u202f", " "}, {"\u2212", "-"}};
  std::string plain(text);
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (std::ranges::all_of(text, isAscii)) return plain;
  for (const auto& [sign, key] : kSigns) {
    for (auto at = plain.find(sign); at != plain.npos; at = plain.find(sign, at)) {
      plain.replace(at, sign.size(), key);
    }
  }
  return plain;
}

std::optional<double> NumberOf(std::string_view text) {
  // Up to here a double holds digits and power of ten as they are, and their quotient is the
  // nearest one to the decimal number.
  constexpr std::size_t kExactDigits = 15;
  constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  text = Trim(text);
  const bool isSigned = text.starts_with('+') || text.starts_with('-');
  std::uint64_t number = 0;
  std::size_t digits = 0;
  std::optional<std::size_t> whole;
  for (const char c : text.substr(isSigned ? 1 : 0)) {
    const auto digit = static_cast<unsigned>(c - '0');
    if (digit <= 9) {
      number = number * 10 + digit;
      ++digits;
    } else if (c == '.' && !whole) {
      whole = digits;
    } else {
      return std::nullopt;
    }
  }
  if (digits == 0) return std::nullopt;
  if (digits > kExactDigits) return ParsedLong(text);
  const double value = static_cast<double>(number) / kPowers[digits - whole.value_or(digits)];
  return text.front() == '-' ? -value : value;
}

bool IsNumeric(std::string_view text) {
  return NumberOf(text).has_value();
}

double NumericValue(std::string_view text) {
  return NumberOf(text).value_or(0);
}

std::optional<std::int16_t> WholeNumber(double value) {
  const double whole = RoundToDecimals(value, 0);
  if (!(whole >= INT16_MIN && whole <= INT16_MAX)) return std::nullopt;
  return static_cast<std::int16_t>(whole);
}

std::optional<std::int16_t> WholeNumber(std::string_view text) {
  const auto number = NumberOf(text);
  return number ? WholeNumber(*number) : std::nullopt;
}

bool IsWhole(double value) {
  return std::isfinite(value) && value == std::floor(value);
}

std::string FormatFixed2(double value) {
  return FixedText(value, 2);
}

std::string FormatGrouped2(double value) {
  return Grouped(FixedText(value, 2));
}

std::string FormatGrouped6(double value) {
  return Grouped(FixedText(value, 6));
}

std::string FormatGroupedWhole(double value) {
  return Grouped(FixedText(value, 0));
}

std::string FormatRate(double value) {
  std::string text = FixedText(value, 4);
  const std::size_t shortest = text.find('.') + 3;
  while (text.size() > shortest && text.back() == '0') text.pop_back();
  return text;
}

std::string FormatTerm(double value) {
  std::string text = FixedText(value, 2);
  const std::size_t firstDigit = text.front() == '-' ? 1 : 0;
  if (text[firstDigit] == '0') text.erase(firstDigit, 1);
  return text;
}

std::string FormatTwoDigits(double value) {
  std::string text = FixedText(value, 0);
  if (text.size() < 2) text.insert(0, 1, '0');
  return text;
}

std::string FormatWhole(double value) {
  return FixedText(value, 0);
}

std::string FormatDollars(double value) {
  std::string text = FormatGrouped2(value);
  const std::size_t firstDigit = text.front() == '-' ? 1 : 0;
  if (text[firstDigit] == '0') text.erase(firstDigit, 1);
  return text.insert(firstDigit, 1, '$');
}

std::string FormatPlain(double value) {
  char text[400];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed).ptr;
  return std::string(text, end);
}

std::string RewriteFixed2(const std::string& text) {
  const auto number = NumberOf(text);
  return number ? FormatFixed2(*number) : text;
}

}  // namespace corvane
