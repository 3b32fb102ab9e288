#include "account/TierTable.h"

#include "support/NumberText.h"

namespace corvane {

namespace {

bool IsEmpty(const std::string& text) {
  return Trim(text).empty();
}

/// A bound of 0 or less bounds nothing and is refused like an empty one.
bool IsMissingBound(const std::string& text) {
  return IsEmpty(text) || (IsNumeric(text) && NumericValue(text) <= 0);
}

TierRefusal Refuse(std::string text, const char* array, int index) {
  return {{std::move(text), ElementName(array, index)}, index};
}

bool IsNoRate(const std::string& text) {
  return !IsNumeric(text) || NumericValue(text) < 0;
}

std::optional<TierRefusal> CheckFirstTier(const TierTable& table) {
  const auto& [rate, bound] = table.Of(1);
  if (IsEmpty(rate)) return Refuse("Please input Interest Rate.", "txtInt", 1);
  if (IsNoRate(rate)) {
    return Refuse("Please enter integers and no decimals for Interest Rate.", "txtInt", 1);
  }
  if (IsMissingBound(bound) || !IsNumeric(bound)) {
    return Refuse("Please enter deposit balance for Tier 1", "txt_bne", 1);
  }
  return std::nullopt;
}

std::optional<TierRefusal> CheckRate(const TierTable& table, int tier) {
  const std::string& rate = table.Of(tier).rate;
  if (IsEmpty(rate)) return Refuse("Please input Interest Rate", "txtInt", tier);
  if (!IsNoRate(rate)) return std::nullopt;
  return Refuse("Please enter integers and no decimals for Interest Rate.", "txtInt", tier);
}

/// The upper bound of the tier below, which a later tier starts from.
std::optional<TierRefusal> CheckBoundBelow(const TierTable& table, int tier) {
  if (tier == kFewestTiers) return std::nullopt;
  const std::string& bound = table.Of(tier - 1).notExceeding;
  const std::string place = std::to_string(tier) + ".";
  if (IsMissingBound(bound)) {
    return Refuse("Please input deposit balance for upto not exceeding tier " + place, "txt_bne",
                  tier - 1);
  }
  if (IsNumeric(bound)) return std::nullopt;
  return Refuse("Please enter integers for deposit balance for upto not exceeding tier " + place,
                "txt_bne", tier - 1);
}

std::optional<TierRefusal> CheckOrder(const TierTable& table, int tier) {
  if (tier == table.count) return std::nullopt;
  const std::string& upper = table.Of(tier).notExceeding;
  // A bound that is missing or no number has a message of its own.
  const bool compares = !IsMissingBound(upper) && IsNumeric(upper);
  if (!compares || NumericValue(table.Of(tier - 1).notExceeding) < NumericValue(upper)) {
    return std::nullopt;
  }
  auto refusal = Refuse("Each succeeding number must be larger than the previous", "txt_bne", tier);
  refusal.clearsBox = false;
  return refusal;
}

}  // namespace

std::optional<TierRefusal> CheckTierTable(const TierTable& table) {
  if (const auto refusal = CheckFirstTier(table)) return refusal;
  for (int tier = kFewestTiers; tier <= table.count; ++tier) {
    for (const auto check : {CheckRate, CheckBoundBelow, CheckOrder}) {
      if (const auto refusal = check(table, tier)) return refusal;
    }
  }
  return std::nullopt;
}

TierTable WithoutUnusedTiers(const TierTable& table) {
  TierTable used{table.count, {}};
  for (int tier = 1; tier <= table.count; ++tier) {
    used.Of(tier).rate = table.Of(tier).rate;
    if (tier < table.count) used.Of(tier).notExceeding = table.Of(tier).notExceeding;
  }
  return used;
}

bool SameTiers(const TierTable& one, const TierTable& other) {
  if (one.count != other.count) return false;
  for (int tier = 1; tier <= kMostTiers; ++tier) {
    const auto& [rate, bound] = one.Of(tier);
    const auto& [otherRate, otherBound] = other.Of(tier);
    const bool same = NumericValue(rate) == NumericValue(otherRate) &&
                      NumericValue(bound) == NumericValue(otherBound);
    if (!same) return false;
  }
  return true;
}

std::vector<Tier> TiersOf(const TierTable& table) {
  std::vector<Tier> tiers;
  double above = 0;
  for (int tier = 1; tier <= table.count; ++tier) {
    tiers.push_back({above, NumericValue(table.Of(tier).rate)});
    above = NumericValue(table.Of(tier).notExceeding);
  }
  return tiers;
}

std::string ElementName(const char* array, int index) {
  return std::string(array) + "(" + std::to_string(index) + ")";
}

}  // namespace corvane
