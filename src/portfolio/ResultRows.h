#pragma once

#include <string>

#include "portfolio/AccountOutcome.h"

namespace corvane {

/// What the verdict column says of a refused row.
inline constexpr const char* kRefused = "REFUSED";

/// The header of what a run writes.
std::string ResultHeader(const PortfolioHeader& header);

/// Appends the rows of an account, each with its result columns.
void AppendResults(std::string& text, const PortfolioHeader& header, const AccountRows& account,
                   const AccountOutcome& outcome);

}  // namespace corvane
