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
  return std::string(start).append(text).append(end);
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

std::string FieldText(std::string_view text) {
  return EscapeHtml(Trim(text));
}

std::string DollarText(std::string_view text) {
  return DollarText(NumericValue(text));
}

std::string DollarText(double amount) {
  return "$" + FormatGrouped2(amount);
}

std::string PlainCell(std::string_view text) {
  return Enclosed("<TD>", text, "</TD>");
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

bool IsOk(std::string_view verdict) {
  return verdict == "OK";
}

std::string BoldVerdictCell(std::string_view verdict) {
  return IsOk(verdict) ? BlackCell(verdict) : BoldRedCell(verdict);
}

}  // namespace corvane
