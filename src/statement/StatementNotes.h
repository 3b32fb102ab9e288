#pragma once

#include "account/Note.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// The notes on a statement that has a result: both minimums with the daily balance method, for
/// which no interest is handed back, and interest that Compute ADB handed back, where the APY of
/// the interest before it was rounded to cents is 0.02 percentage points or more away. None without
/// a result.
Notes NotesOf(const StatementCheck& check);

}  // namespace corvane
