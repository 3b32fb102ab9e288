#include "reports/HtmlText.h"

#include "support/NumberText.h"

namespace corvane {

namespace {

std::string_view EntityOf(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {};
  }
}

std::string Enclosed(std::string_view start, std::string_view text, std::string_view end) {
  std::string enclosed;
  enclosed.reserve(start.size() + text.size() + end.size());
  return enclosed.append(start).append(text).append(end);
}

}  // namespace

std::string EscapeHtml(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (char c : text) {
    const std::string_view entity = EntityOf(c);
    if (entity.empty()) {
      escaped += c;
    } else {
      escaped += entity;
    }
  }
  return escaped;
}

std::string CellText(std::string_view typed) {
  return EscapeHtml(Trim(typed));
}

std::string DollarText(double amount) {
  return "$" + FormatGrouped2(amount);
}

const char* VerdictText(Verdict verdict) {
  return verdict == Verdict::Ok ? "OK" : "APY VIOLATION";
}

std::string PlainCell(std::string_view text) {
  return Enclosed("<TD>", text, "</TD>");
}

void AddPlainCell(std::string& row, std::string_view text) {
  row.append("<TD>").append(text).append("</TD>");
}

std::string BlackCell(std::string_view text) {
  return Enclosed("<TD><Font Color=\"#000000\">", text, "</TD>");
}

std::string RedCell(std::string_view text) {
  return Enclosed("<TD><Font Color=\"#FF0000\">", text, "</TD>");
}

std::string BoldRedCell(std::string_view text) {
  return Enclosed("<TD><b><Font Color=\"#FF0000\">", text, "</b></TD>");
}

std::string TableCell(std::string_view text) {
  return Enclosed("<td>", text, "</td>");
}

void AddTableCell(std::string& row, std::string_view text) {
  row.append("<td>").append(text).append("</td>");
}

std::string TableHtml(std::string_view caption, const std::vector<std::string>& headings,
                      const std::vector<std::string>& rows) {
  std::string html = "<table><caption>";
  html.append(caption).append("</caption><thead><tr>");
  for (const std::string& heading : headings) {
    html.append("<th scope=\"col\">").append(heading).append("</th>");
  }
  html += "</tr></thead><tbody>";
  for (const std::string& cells : rows) html.append("<tr>").append(cells).append("</tr>");
  return html + "</tbody></table>";
}

std::string BoldVerdictCell(Verdict verdict) {
  const char* text = VerdictText(verdict);
  return verdict == Verdict::Ok ? BlackCell(text) : BoldRedCell(text);
}

}  // namespace corvane
