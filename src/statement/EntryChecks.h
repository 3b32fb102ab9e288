#pragma once

#include "statement/StatementCheck.h"

namespace corvane {

/// Everything that Compute ADB and Calculate check first: the minimum balances, the period (which
/// may fill the days), the method (which may be selected in the entry), the fields. Both minimums
/// together bring a notice and pass.
CheckOutcome CheckEntries(StatementCheck& check);

/// What Compute ADB checks beyond that: a stepped account may not have a minimum ADB alone.
std::optional<Refusal> CheckBeforeCompute(const StatementCheck& check);

/// What Calculate checks beyond that: the same, the average of the basis, and the interest.
std::optional<Refusal> CheckBeforeResult(const StatementCheck& check);

}  // namespace corvane
