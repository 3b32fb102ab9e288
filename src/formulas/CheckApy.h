#pragma once

namespace corvane {

struct SessionRecord;

/// Stores "OK" in ApyVerdict when the computed APY is within 0.05 of the disclosed one (both in
/// percent, the bound included), else "APY VIOLATION".
void CheckApy(SessionRecord& session, double disclosedApy, double computedApy);

}  // namespace corvane
