#pragma once

#include "account/AccountHeader.h"
#include "formulas/AccountTerms.h"
#include "reports/ReportTemplate.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// The tags that every report fills alike: institution and account description (escaped, as typed),
/// today's date "mm-dd-yyyy" and the days of the year of the daily rate factor.
Tags CommonTags(const AccountHeader& header, double factorDays, const Date& today);

/// CommonTags and what both statement reports fill alike: account holder and number, calculation
/// method, compounding, and whether the additional APY formula applies.
Tags StatementTags(const AccountHeader& header, const StatementCheck& check, const Date& today);

/// "REGULAR RATE", "STEPPED RATE", "TIERING Method A" or "TIERING Method B".
const char* AccountTypeHeading(AccountKind kind);

/// "Days", "Months", "Years" or "None".
const char* UnitText(Unit unit);

/// What the heading of a report's line number column says.
inline constexpr const char* kLineNoHeading = "Line No.";

}  // namespace corvane
