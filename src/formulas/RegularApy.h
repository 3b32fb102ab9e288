#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// Interest and APY of one regular-rate term, or of one tier by method A (Regulation DD, Appendix
/// A, Part I.A). Stores ComputedInterest and ComputedApy rounded to 2 decimals, TermDays,
/// ApyVerdict, DaysInYear, and for tiered accounts TierInterestTotal. A factor without "/" computes
/// and stores nothing.
/// @param disclosedApy, rate percent numbers
/// @param principal grows by the interest with withdrawals every so many days, but for tiered
///   accounts
/// @param term as entered; comes back as TermDays
/// @param dailyRateFactor such as "1/365"
/// @param firstPeriod 1 when withdrawals every so many months have to fill the term
/// @return why nothing was computed; results and arguments are then as they were, and so is
///   PeriodCount, which belongs to the attempt of the caller
std::optional<Refusal> CalcRegularApy(SessionRecord& session, double disclosedApy, double rate,
                                      double& principal, double& term,
                                      const std::string& dailyRateFactor, std::int16_t firstPeriod);

}  // namespace corvane
