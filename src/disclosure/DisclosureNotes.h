#pragma once

#include <string>

#include "account/Note.h"
#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// The notes on a check that has a result, the other figures computed by the same formulas from the
/// same entries: only those that are 0.01 percentage points or more away from what is shown, of
/// interest rounded to cents 0.02. None without a result. Of a stepped account with periods to come
/// only that they are to come: its APY is not to be compared yet.
Notes NotesOf(const DisclosureCheck& check);

/// What has to be said beside the APY of a stepped account with periods to come: "Periods computed:
/// 1 of 3. The APY is not yet that of the whole term." Empty for any other.
std::string PeriodsRemainText(const DisclosureCheck& check);

/// What a result row stands for, where the account has more than one APY: "Tier 2", or by method B
/// "Tier 2, low end". Rows count from 0; empty for a regular and a stepped account.
std::string PlaceOfRow(const DisclosureCheck& check, std::size_t row);

}  // namespace corvane
