#pragma once

#include <span>
#include <string>
#include <vector>

#include "account/AccountHeader.h"
#include "formulas/AccountTerms.h"

namespace corvane {

// The parts of the line above the fields of an entry window, which says whose account it is.

/// The parts in one line, " · " between them. Empty ones, and blanks at their ends, are left out.
std::string JoinParts(std::span<const std::string> parts);

/// Institution and description of the account, either of which may be empty.
std::vector<std::string> HeaderParts(const AccountHeader& header);

/// "every 1 day", "every 3 months", "no compounding".
std::string CompoundingText(const Compounding& compounding);

/// "365 days" and "29 Feb not counted".
std::vector<std::string> YearParts(const YearRule& year);

}  // namespace corvane
