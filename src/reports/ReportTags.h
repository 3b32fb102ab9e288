#pragma once

#include "account/AccountHeader.h"
#include "account/Note.h"
#include "formulas/AccountTerms.h"
#include "reports/ReportTemplate.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// The tags that every report fills alike: institution and account description (escaped, as typed),
/// today's date "mm-dd-yyyy", the days of the year of the daily rate factor, the program's name and
/// version.
Tags CommonTags(const AccountHeader& header, double factorDays, const Date& today);

/// The notes as a block with a heading; empty without notes.
std::string NotesHtml(const Notes& notes);

/// CommonTags and what both statement reports fill alike: account holder and number, calculation
/// method, compounding, whether the additional APY formula applies, days in the year of the APY,
/// whether 29 February counts, the daily rate factor, minimums, and the tier table.
Tags StatementTags(const AccountHeader& header, const StatementCheck& check, const Date& today);

/// "REGULAR RATE", "STEPPED RATE", "TIERING Method A" or "TIERING Method B".
const char* AccountTypeHeading(AccountKind kind);

/// "Days", "Months", "Years" or "None".
const char* UnitText(Unit unit);

/// What the heading of a report's line number column says.
inline constexpr const char* kLineNoHeading = "Line No.";

}  // namespace corvane
