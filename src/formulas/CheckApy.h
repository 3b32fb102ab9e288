#pragma once

namespace corvane {

struct SessionRecord;

inline constexpr const char* kApyOk = "OK";
inline constexpr const char* kApyViolation = "APY VIOLATION";

/// The violation test: stores the verdict on a disclosed APY in ApyVerdict. A computed APY no more
/// than one twentieth of a percentage point (0.05) away is "OK", the bound included; any other is
/// an "APY VIOLATION" (Regulation DD, 12 CFR 230.3(f)). Both are percent numbers.
void CheckApy(SessionRecord& session, double disclosedApy, double computedApy);

}  // namespace corvane
