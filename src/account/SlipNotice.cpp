#include "account/SlipNotice.h"

#include <cmath>

#include "account/DailyRateFactor.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

/// A point left out makes a hundred times of an amount like the one before, which may itself have
/// changed by up to a half.
constexpr double kJump = 50;

}  // namespace

std::optional<std::string> FactorNotice(std::string_view factor) {
  const auto days = FactorDays(factor);
  if (!days || *days == 360 || *days == 365 || *days == 366) return std::nullopt;
  return std::string(Trim(factor)) +
         ": is this meant? The factors of a year are 1/365 and 1/366, also 1/360.";
}

std::optional<std::string> JumpNotice(const std::string& what, const std::string& text,
                                      const std::string& before) {
  const double now = std::abs(NumericValue(text));
  const double then = std::abs(NumericValue(before));
  if (now == 0 || then == 0) return std::nullopt;
  const bool grew = now >= kJump * then;
  if (!grew && then < kJump * now) return std::nullopt;
  const std::string times = FormatGroupedWhole(grew ? now / then : then / now);
  return what + " " + text + ": is this meant? It is " +
         (grew ? times + " times" : "1/" + times + " of") + " the " + before + " before.";
}

std::optional<std::string> TierRateNotice(const TierTable& table, int tier) {
  if (tier <= 1) return std::nullopt;
  return JumpNotice("Rate of Tier " + std::to_string(tier), table.Of(tier).rate,
                    table.Of(tier - 1).rate);
}

}  // namespace corvane
