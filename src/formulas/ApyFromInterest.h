#pragma once

#include <optional>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// APY of a tiered account from the interest summed over its tiers. Stores SummaryInterest and
/// ComputedApy, both rounded to 2 decimals, and ApyVerdict. The year has 366 days when 29 February
/// counts or the account has a 366-day year; by months, when the beginning year is divisible by 4.
/// @param interest comes back rounded to 2 decimals
/// @param term as entered; comes back as days, as months where compounding is by months, as it
///   was by years. By days the number of periods is read from EnteredTerm.
/// @param disclosedApy percent
/// @return a refusal where there is no finite result; nothing is stored then
std::optional<Refusal> CalcApyFromInterest(SessionRecord& session, double& interest,
                                           double principal, double& term, double disclosedApy);

}  // namespace corvane
