#pragma once

#include <string>

#include "account/AccountHeader.h"
#include "disclosure/DisclosureCheck.h"
#include "portfolio/Columns.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// The header of a file that checks are written to: every column that is read.
std::string CheckFileHeader();

// A check that was made in the windows as rows of such a file, which give the same check again.
// Each row ends in LF. What the program worked out itself, such as a term that dates give, is left
// out, so that it is worked out again.

/// @param account tells the account from the one above it in the file
std::string RowsOf(const std::string& account, const AccountHeader& header,
                   const DisclosureCheck& check);

/// Daily balances, where the average rests on them, are not part of the rows; their average and
/// interest are.
std::string RowsOf(const std::string& account, const AccountHeader& header,
                   const StatementCheck& check);

}  // namespace corvane
