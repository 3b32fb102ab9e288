#pragma once

#include "account/EntryCheck.h"
#include "statement/StatementSetup.h"

namespace corvane {

struct SessionRecord;

/// Continue of the setup window: checks the setup and stores the account description. A refusal
/// stores nothing. A notice says that 29 February will be counted, as a year of 366 days demands;
/// the option is changed in `setup`. A changed choice of days in the year empties the daily rate
/// factor, and any change ends the detail of an earlier computation.
CheckOutcome ValidateAndStoreSetup(StatementSetup& setup, SessionRecord& session);

/// Stores the days between compoundings of a checked setup, "0" going into an empty field: by the
/// setup window's Continue, for tiered accounts by the tier window's.
void StoreCompoundingDays(StatementSetup& setup, SessionRecord& session);

}  // namespace corvane
