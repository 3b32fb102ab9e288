#pragma once

namespace corvane {

enum class Verdict { Ok, Violation };

/// The violation test: a computed APY no more than one twentieth of a percentage point (0.05) away
/// from the disclosed one is Ok, the bound included; any other is a Violation (Regulation DD,
/// section 3(f)). Both are percent numbers.
Verdict CheckApy(double disclosedApy, double computedApy);

}  // namespace corvane
