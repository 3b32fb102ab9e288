#pragma once

#include <string>

#include "disclosure/DisclosureCheck.h"
#include "reports/ReportTemplate.h"

namespace corvane {

// What was entered and decides a report's figures, beyond its rows.

/// Tags of a disclosure: days in the year of the APY, whether 29 February counts, the total of
/// stepped periods, the table of what was entered for each line, the tier table.
Tags EnteredTags(const DisclosureCheck& check);

/// A table of the tiers with their bounds; empty without tiers. The ends at which the tiers were
/// verified by method B stand in it where there is a check.
std::string TierTableHtml(const TierTable& tiers, const DisclosureCheck* check = nullptr);

}  // namespace corvane
