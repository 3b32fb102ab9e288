#include "account/NumericEntry.h"

#include <map>

namespace corvane {

namespace {

constexpr char32_t kBackspace = 8;

const std::string& LabelOfKind(const std::string& kind) {
  static const std::map<std::string, std::string> labels = {
      {"bal", "Balance "}, {"int", "Interest Rate "}, {"userint", "Interest "}, {"apy", "APY "}};
  static const std::string none;
  const auto label = labels.find(kind);
  return label == labels.end() ? none : label->second;
}

std::u16string WithoutSelection(const TypedInto& field) {
  if (field.selectionLength <= 0) return field.text;
  std::u16string rest = field.text;
  return rest.erase(static_cast<std::size_t>(field.selectionStart),
                    static_cast<std::size_t>(field.selectionLength));
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
          Refusal{LabelOfKind(kind) + "allows a maximum of " + std::to_string(maximum) +
                      " decimal places, Your entry has been truncated",
                  ""}};
}

}  // namespace corvane
