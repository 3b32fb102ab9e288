#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formulas/CheckApy.h"

namespace corvane {

/// The text with &, <, > and both quotes written as entities, so that a browser shows it as typed.
std::string EscapeHtml(std::string_view text);

/// How a typed text stands in a cell: escaped, without the blanks at its ends.
std::string CellText(std::string_view typed);

/// "$" and the amount formatted "##,##0.00": 1234.5 gives $1,234.50.
std::string DollarText(double amount);

/// "OK" or "APY VIOLATION".
const char* VerdictText(Verdict verdict);

// The forms of a report's rows and cells. The texts are taken as HTML.

inline constexpr std::string_view kRowStart = "<TR align=center>";
inline constexpr std::string_view kRowEnd = "</TR>";
inline constexpr std::string_view kEmptyCell = "<TD>&nbsp;</TD>";
inline constexpr std::string_view kPaddingCell = "<TD> &nbsp; </TD>";

std::string PlainCell(std::string_view text);
void AddPlainCell(std::string& row, std::string_view text);
std::string BlackCell(std::string_view text);
std::string RedCell(std::string_view text);
std::string BoldRedCell(std::string_view text);

/// A cell of a table that a report holds beside its rows.
std::string TableCell(std::string_view text);
void AddTableCell(std::string& row, std::string_view text);

/// Such a table, its rows given as the HTML of their cells.
std::string TableHtml(std::string_view caption, const std::vector<std::string>& headings,
                      const std::vector<std::string>& rows);

/// The verdict in black, or bold and red for a violation.
std::string BoldVerdictCell(Verdict verdict);

}  // namespace corvane
