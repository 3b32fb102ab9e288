#pragma once

#include "account/EntryCheck.h"
#include "statement/StatementEntry.h"

namespace corvane {

/// Calculate of the period window: checks the entries, computes the APY earned on the average of
/// the basis (Regulation DD, Appendix A, Part II) and stores ComputedApy and ApyVerdict with the
/// entries. A notice does not keep the results from being shown; after a refusal no result is
/// stored.
CheckOutcome CalculateStatement(SessionRecord& session, StatementEntry& entry);

}  // namespace corvane
