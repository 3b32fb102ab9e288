#pragma once

#include <cstdint>
#include <optional>

#include "account/Refusal.h"
#include "formulas/ApyFromInterest.h"
#include "formulas/RateSchedule.h"

namespace corvane {

struct SessionRecord;

/// The end of a tier's balance range at which a tiered account is verified by method B. Tier 1 is
/// verified at its high end only.
enum class TierEnd { Low, High };

/// The part of a deposit in tier k when the deposit reaches to one end of tier `reached`: the full
/// width of a tier below it; in the tier itself a cent at the low end and the width at the high
/// end. The last tier, which has no width, holds what EnteredBalance is above its lower bound.
double TierShare(const SessionRecord& session, std::int16_t k, std::int16_t reached, TierEnd end);

/// Sums interest and balance over the tiers 1 to PeriodNumber by method B (Regulation DD, Appendix
/// A, Part I.D): each tier's share earns the tier's own rate over EnteredTerm. Stores Principal,
/// ComputedInterest and TierInterestTotal (both the unrounded sum) and RateScheduleText.
/// @return a refusal of the withdrawal periods or the term, which ends the sum
std::optional<Refusal> SumTiers(SessionRecord& session, TierEnd end);

}  // namespace corvane
