#include "account/NumericEntry.h"

#include <algorithm>

#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr char32_t kBackspace = 8;

/// What the kinds of fields are called in messages, and the sign that stands beside their numbers.
struct Kind {
  std::string_view name;
  std::string_view label;
  char sign;
};

constexpr Kind kKinds[] = {{"bal", "Balance ", '$'},
                           {"int", "Interest Rate ", '%'},
                           {"userint", "Interest ", '$'},
                           {"apy", "APY ", '%'}};

Kind KindOf(std::string_view name) {
  const auto* const kind = std::ranges::find(kKinds, name, &Kind::name);
  return kind == std::end(kKinds) ? Kind{} : *kind;
}

std::u16string WithoutSelection(const TypedInto& field) {
  if (field.selectionLength <= 0) return field.text;
  std::u16string rest = field.text;
  return rest.erase(static_cast<std::size_t>(field.selectionStart),
                    static_cast<std::size_t>(field.selectionLength));
}

/// Takes a sign off the front of the text, and the blanks behind it.
bool TakeSign(std::string_view& text, char sign) {
  if (!text.starts_with(sign)) return false;
  text = Trim(text.substr(1));
  return true;
}

/// The digits of a whole number whose commas all part threes of them; nothing for other commas.
std::optional<std::string> WithoutThousands(std::string_view whole) {
  constexpr std::size_t kGroup = 3;
  const auto first = whole.find(',');
  if (first == whole.npos) return std::string(whole);
  if (first == 0 || first > kGroup || whole.front() == '0') return std::nullopt;
  std::string digits(whole.substr(0, first));
  for (whole.remove_prefix(first); !whole.empty(); whole.remove_prefix(1 + kGroup)) {
    const std::string_view group = whole.substr(1, kGroup);
    if (whole.front() != ',' || group.size() < kGroup) return std::nullopt;
    digits += group;
  }
  return digits;
}

}  // namespace

bool FilterNumericKey(char32_t code, const TypedInto& field) {
  if (code == kBackspace) return true;
  if (code >= U'0' && code <= U'9') return true;
  if (code != U'.' && code != U'-') return false;
  return WithoutSelection(field).find(static_cast<char16_t>(code)) == std::u16string::npos;
}

std::u16string FixMinusSign(const std::u16string& text) {
  const auto place = text.find(u'-');
  if (place == std::u16string::npos || place == 0) return text;
  std::u16string repaired = text;
  return repaired.erase(place, 1);
}

LimitedText LimitDecimals(const std::u16string& text, int maximum, const std::string& kind) {
  const auto point = text.find(u'.');
  const auto most = static_cast<std::size_t>(maximum);
  if (point == std::u16string::npos || text.size() - point - 1 <= most) return {text, {}};
  return {text.substr(0, point + 1 + most),
          Refusal{std::string(KindOf(kind).label) + "allows a maximum of " +
                      std::to_string(maximum) + " decimal places, Your entry has been truncated",
                  ""}};
}

std::optional<std::string> CleanPastedNumber(std::string_view pasted, const std::string& kind) {
  const char sign = KindOf(kind).sign;
  const std::string plain = WithKeyboardSigns(pasted);
  std::string_view text = Trim(plain);
  bool isNegative = TakeSign(text, '-');
  if (sign == '$' && TakeSign(text, '$') && !isNegative) isNegative = TakeSign(text, '-');
  if (sign == '%' && text.ends_with(sign)) text = Trim(text.substr(0, text.size() - 1));
  const auto point = std::min(text.find('.'), text.size());
  // A comma in a percentage is a decimal point of elsewhere.
  const auto whole =
      sign == '%' ? std::string(text.substr(0, point)) : WithoutThousands(text.substr(0, point));
  if (!whole) return std::nullopt;
  const std::string number = *whole + std::string(text.substr(point));
  if (!IsNumeric(number) || number.front() == '-' || number.front() == '+') return std::nullopt;
  return isNegative ? '-' + number : number;
}

std::optional<std::string> PastedNumber(const TypedInto& field, std::string_view pasted,
                                        const std::string& kind) {
  const auto number = CleanPastedNumber(pasted, kind);
  if (!number) return std::nullopt;
  std::u16string filled = WithoutSelection(field);
  filled.insert(static_cast<std::size_t>(field.selectionStart),
                std::u16string(number->begin(), number->end()));
  return IsNumeric(std::string(filled.begin(), filled.end())) ? number : std::nullopt;
}

}  // namespace corvane
