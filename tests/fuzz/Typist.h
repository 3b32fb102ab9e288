#pragma once

#include <array>
#include <string>

#include "Fuzz.h"
#include "account/Field.h"
#include "account/TierTable.h"

namespace corvane {

/// A text that a person may type, or any bytes.
inline std::string TypedText(FuzzedDataProvider& input) {
  static constexpr const char* kPlausible[] = {
      "",      "0",    "1",    "2",           "3",          "5",          "7",     "10",
      "12",    "30",   "31",   "96",          "182",        "365",        "366",   "730",
      "0.5",   "5.25", "1000", "1000.00",     "100000",     "-5",         "1/365", "1/360",
      "1/366", "06",   "2024", "01-01-2024",  "01-31-2024", "02-29-2024", "x",     "1e9",
      " 4 ",   "2023", "0.01", "99999999999", "36600",      "1200",       "32767", "01-01-2025"};
  if (input.ConsumeIntegralInRange(0, 9) == 0) return input.ConsumeRandomLengthString(24);
  return input.PickValueInArray(kPlausible);
}

/// Types into one of the fields or chooses one of the options.
template <class Values>
void ActOn(Values& values, FuzzedDataProvider& input) {
  const auto fields = Values::Fields();
  const auto options = Values::Options();
  const auto act = input.ConsumeIntegralInRange<std::size_t>(0, fields.size() + options.size() - 1);
  if (act >= fields.size()) return options[act - fields.size()].choose(values);
  Field& field = values.*fields[act].field;
  if (!field.enabled) return;
  field.text = TypedText(input);
  field.workedOut = false;
}

inline TierTable TypedTiers(FuzzedDataProvider& input) {
  TierTable tiers;
  tiers.count = input.ConsumeIntegralInRange(2, kMostTiers);
  for (int tier = 1; tier <= tiers.count; ++tier) {
    const bool typesAnything = input.ConsumeIntegralInRange(0, 7) == 0;
    tiers.Of(tier).rate = typesAnything ? TypedText(input) : std::to_string(tier);
    tiers.Of(tier).notExceeding = typesAnything ? TypedText(input) : std::to_string(1000 * tier);
  }
  return tiers;
}

}  // namespace corvane
