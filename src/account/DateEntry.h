#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/Dates.h"

namespace corvane {

/// A date field with the mask "__-__-____": what it shows, and the place of its cursor from 0 on.
struct MaskedDate {
  std::string text;
  int cursor = 0;
};

/// Whether a typed character parts month, day and year: "/", "-" or ".".
bool IsDateSeparator(std::string_view typed);

/// What a separator does that is typed at the cursor: one digit before it gets a leading 0, and the
/// cursor goes to the next part. Behind four digits that are no month and day, as of "2026-01-05",
/// it makes them the year, and month and day follow. Anywhere else it does nothing.
MaskedDate AfterSeparator(const MaskedDate& typed);

/// The date of a copied text (UTF-8): month, day and year of four digits, or year, month and day,
/// with the same separator twice, or "mmddyyyy"; leading zeros may be missing, and blanks and line
/// ends stand around it. Nothing for all else, such as a year of two digits or a day that the
/// calendar has not.
std::optional<Date> ReadPastedDate(std::string_view pasted);

/// What is said of a paste that a date field refused.
inline constexpr const char* kDateNotPasted =
    "The pasted text was not taken over: it is no date such as 10-31-2026.";

/// What two dates count, the end not included, as in "30 days, Oct 1 to Oct 30 (end date not
/// counted)"; where 29 February does not count, also that it was passed over. The years are named
/// where they differ.
std::string DateCountText(const Date& start, const Date& end, bool countsLeapDay);

}  // namespace corvane
