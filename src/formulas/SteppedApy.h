#pragma once

#include <optional>

#include "account/Refusal.h"
#include "formulas/SteppedPeriod.h"

namespace corvane {

/// APY of a stepped-rate term (Regulation DD, Appendix A, Part I.B) from the session's
/// ComputedInterest and TermUnits, the sums over its periods. Stores ComputedApy rounded to 2
/// decimals and ApyVerdict; ComputedInterest stays unrounded.
/// @param disclosedApy percent
/// @param firstBalance the principal where compounding is by months; Principal else
/// @return a refusal where the APY is not finite; nothing is stored then
std::optional<Refusal> CalcSteppedApy(SessionRecord& session, double disclosedApy,
                                      double firstBalance);

}  // namespace corvane
