#include "disclosure/EntryContext.h"

#include "account/ContextText.h"
#include "disclosure/EntrySequence.h"

namespace corvane {

namespace {

std::string WithdrawalText(Unit withdrawal) {
  if (withdrawal == Unit::None) return "no withdrawals";
  return withdrawal == Unit::Months ? "withdrawals by months" : "withdrawals by days";
}

/// A tier with its upper bound, which the last one does not have.
struct BoundedTier {
  int number;
  Tier tier;
  std::optional<double> upTo;
};

BoundedTier CurrentTier(const DisclosureCheck& check) {
  const std::vector<Tier> tiers = TiersOf(check.tiers);
  const int number = PeriodOrTier(check);
  const auto place = static_cast<std::size_t>(number);
  BoundedTier current{number, tiers.at(place - 1), std::nullopt};
  if (place < tiers.size()) current.upTo = tiers[place].above;
  return current;
}

std::string TextOf(const BoundedTier& tier) {
  std::string text = "Tier " + std::to_string(tier.number) + ":";
  if (tier.number > 1) text += " above " + FormatGrouped2(tier.tier.above);
  if (tier.upTo) text += " up to " + FormatGrouped2(*tier.upTo);
  return text + " at " + FormatRate(tier.tier.rate) + " %";
}

bool LiesOutside(const BoundedTier& tier, const Field& balance) {
  if (!balance.IsNumber()) return false;
  const bool below = tier.number > 1 && balance.Value() <= tier.tier.above;
  return below || (tier.upTo && balance.Value() > *tier.upTo);
}

}  // namespace

std::string ContextOf(const AccountHeader& header, const DisclosureSetup& setup) {
  std::vector<std::string> parts = HeaderParts(header);
  parts.push_back(CompoundingText({setup.compounding, PeriodLength(setup)}));
  if (GroupsOf(setup).year) {
    for (std::string& part : YearParts(setup.year)) parts.push_back(std::move(part));
  }
  parts.push_back(WithdrawalText(setup.withdrawal));
  return JoinParts(parts);
}

TierContext TierContextOf(const DisclosureCheck& check, const Field& balance) {
  const bool isComplete = check.completed >= EntryCount(check);
  if (!check.setup.IsTiered() || isComplete) return {};
  const BoundedTier tier = CurrentTier(check);
  const bool outside = check.setup.kind == AccountKind::TierA && LiesOutside(tier, balance);
  return {TextOf(tier) + (outside ? ", the balance lies outside" : ""), outside};
}

}  // namespace corvane
