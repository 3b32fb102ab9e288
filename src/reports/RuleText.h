#pragma once

#include <string>

#include "disclosure/DisclosureCheck.h"
#include "statement/DailyBalances.h"
#include "statement/StatementCheck.h"

namespace corvane {

// The rules that a report's figures follow, in sentences of HTML with their places in Regulation
// DD, Appendix A. By them a reader can compute the figures again from what the report shows.

/// How interest and APY of a disclosure were computed.
std::string DisclosureRule(const DisclosureCheck& check);

/// How the APY earned of a statement was computed.
std::string StatementRule(const StatementCheck& check);

/// How the average daily balance and the interest of its days were computed.
std::string InterestRule(const StatementAccount& account);

/// A verdict in words, with how far the two APYs are apart: "OK: the disclosed APY of 5.13% is
/// within 0.05 percentage point of the computed APY of 5.12%."
std::string VerdictSentence(double disclosedApy, double computedApy);

/// The verdicts of a disclosure's result rows in words; of more than one row how many violate.
std::string VerdictSentence(const DisclosureResult& result);

}  // namespace corvane
