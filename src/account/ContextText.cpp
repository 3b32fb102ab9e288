#include "account/ContextText.h"

#include "support/NumberText.h"

namespace corvane {

namespace {

std::string UnitText(Unit unit) {
  switch (unit) {
    case Unit::None:
      return "";
    case Unit::Days:
      return "day";
    case Unit::Months:
      return "month";
    case Unit::Years:
      return "year";
  }
  return "";
}

}  // namespace

std::string JoinParts(std::span<const std::string> parts) {
  std::string line;
  for (const std::string& part : parts) {
    const std::string_view text = Trim(part);
    if (text.empty()) continue;
    if (!line.empty()) line += " · ";
    line += text;
  }
  return line;
}

std::vector<std::string> HeaderParts(const AccountHeader& header) {
  return {header.institution, header.description};
}

std::string CompoundingText(const Compounding& compounding) {
  if (compounding.unit == Unit::None) return "no compounding";
  return "every " + CountText(compounding.length, UnitText(compounding.unit));
}

std::vector<std::string> YearParts(const YearRule& year) {
  return {CountText(year.days, "day"),
          year.countsLeapDay ? "29 Feb counted" : "29 Feb not counted"};
}

}  // namespace corvane
