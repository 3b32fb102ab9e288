#pragma once

#include <optional>
#include <string>

#include "account/AccountHeader.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// Whose account it is, which stays while its period is typed: "First Bank · every 1 day · 365 days
/// · 29 Feb not counted".
std::string ContextOf(const AccountHeader& header, const StatementSetup& setup);

/// What the daily window says of the statement: all that, and " · 10-01-2026 to 10-31-2026 · period
/// of 30 days · average daily balance method". What is not known is left out.
std::string ContextOf(const AccountHeader& header, const StatementCheck& check);

/// What the period window asks for first, of what is still missing.
std::string NextStepOfEntry(const StatementEntry& entry);

/// What is asked beside the results of a daily rate factor of no year: where Calculate followed the
/// typing at once, the question went with the period window.
std::optional<std::string> SlipOfResults(const StatementCheck& check);

/// What the results window can be left for.
std::string NextStepOfResults(const StatementCheck& check);

}  // namespace corvane
