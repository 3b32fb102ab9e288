#pragma once

#include <string>
#include <string_view>

namespace corvane {

/// The text with &, <, > and both quotes written as entities, so that a browser shows it as typed.
std::string EscapeHtml(std::string_view text);

/// EscapeHtml of the text without the blanks at its ends: how a field's text stands in a cell.
std::string FieldText(std::string_view text);

/// The amount in a field as "$" and the number formatted "##,##0.00" (1234.5 gives $1,234.50); a
/// text that is no number counts as 0.
std::string DollarText(std::string_view text);
std::string DollarText(double amount);

// The forms of a report's rows and cells. The texts are taken as HTML.

inline constexpr std::string_view kRowStart = "<TR align=center>";
inline constexpr std::string_view kRowEnd = "</TR>";
inline constexpr std::string_view kEmptyCell = "<TD>&nbsp;</TD>";
inline constexpr std::string_view kPaddingCell = "<TD> &nbsp; </TD>";

std::string PlainCell(std::string_view text);
std::string BlackCell(std::string_view text);
std::string RedCell(std::string_view text);
std::string BoldRedCell(std::string_view text);

/// True for the verdict of an APY within the tolerance.
bool IsOk(std::string_view verdict);

/// The verdict in black when it is "OK", else bold and red.
std::string BoldVerdictCell(std::string_view verdict);

}  // namespace corvane
