#pragma once

#include <string>
#include <utility>
#include <vector>

#include "reports/TemplateEngine.h"

namespace corvane {

struct SessionRecord;

using TagList = std::vector<std::pair<std::string, TagValue>>;

/// The tags that every report fills alike: institution and account description (escaped, as typed),
/// today's date "mm-dd-yyyy" and the days of the year.
TagList CommonTags(const SessionRecord& session);

/// CommonTags and what both statement reports fill alike: account holder and number, calculation
/// method, compounding, and whether the setup chose the additional APY formula.
TagList StatementTags(const SessionRecord& session, bool additionalApyFormula);

/// "REGULAR RATE", "STEPPED RATE", "TIERING Method A" or "TIERING Method B"; empty as long as no
/// account type was chosen.
std::string AccountTypeHeading(const SessionRecord& session);

/// What the heading of a report's line number column says.
inline constexpr const char* kLineNoHeading = "Line No.";

}  // namespace corvane
