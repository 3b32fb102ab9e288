#include "disclosure/EntryOverview.h"

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"

namespace corvane {

namespace {

/// A typed number in a format; what is none as it was typed.
std::string Shown(const Field& field, std::string (*format)(double)) {
  return field.IsNumber() ? format(field.Value()) : field.text;
}

std::string NameOfEntry(const DisclosureCheck& check, int entry) {
  if (check.setup.kind != AccountKind::TierB) return std::to_string(entry);
  const std::string tier = std::to_string(TierOfEntry(entry));
  if (entry == 1) return tier;
  return tier + (IsLowEnd(entry) ? " low" : " high");
}

}  // namespace

bool HasOverview(const DisclosureSetup& setup) {
  return setup.kind == AccountKind::Stepped || setup.IsTiered();
}

std::string EntryHeading(const DisclosureCheck& check) {
  const std::string heading = "Entry " + std::to_string(CurrentEntry(check));
  const int count = EntryCount(check);
  return count > 0 ? heading + " of " + std::to_string(count) : heading;
}

std::vector<EntryLine> EntriesSoFar(const DisclosureCheck& check) {
  const auto result = ResultSoFar(check);
  std::vector<EntryLine> lines;
  for (const DisclosureEntry& entry : check.entries) {
    const int number = static_cast<int>(lines.size()) + 1;
    EntryLine line{number,
                   NameOfEntry(check, number),
                   Shown(entry.txtIntRateA, FormatRate),
                   Shown(entry.txtBal, FormatGrouped2),
                   Shown(entry.txtDiscAPY, FormatFixed2),
                   {}};
    if (result && lines.size() < result->rows.size()) {
      if (const auto apy = result->rows[lines.size()].apy) line.computed = FormatFixed2(*apy);
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace corvane
