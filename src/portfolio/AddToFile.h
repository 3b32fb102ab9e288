#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "account/AccountHeader.h"
#include "account/Refusal.h"
#include "disclosure/DisclosureCheck.h"
#include "statement/StatementCheck.h"

namespace corvane {

// A check that was made in the windows goes to the end of a file, which is made with its header
// where there is none, so that it can be repeated and sent. The account gets a number that the file
// does not have yet. Nothing is written where the file has another header, or cannot be read or
// written; what was there stays.

/// What is told once a check was added, or why it was not.
using AddOutcome = std::variant<std::string, Refusal>;

/// A stepped account is added once all of its periods are calculated.
AddOutcome AddToFile(const std::filesystem::path& file, const AccountHeader& header,
                     const DisclosureCheck& check);

/// The daily balances that the result rests on go to the file of BalancesBeside.
AddOutcome AddToFile(const std::filesystem::path& file, const AccountHeader& header,
                     const StatementCheck& check);

}  // namespace corvane
