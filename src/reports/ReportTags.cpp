#include "reports/ReportTags.h"

#include "account/SessionRecord.h"
#include "reports/HtmlText.h"
#include "support/Clock.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

/// A statement account compounds every so many days or not at all.
std::string StatementCompounding(const SessionRecord& session) {
  if (session.CompoundDays) return "Days";
  return session.CompoundNone ? "None" : "";
}

}  // namespace

TagList CommonTags(const SessionRecord& session) {
  return {
      {"^instname^", {EscapeHtml(session.InstitutionName), ""}},
      {"^depname^", {EscapeHtml(session.AccountDescription), ""}},
      {"^rundate^", {FormatDate(Today()), ""}},
      {"^drf^", {FormatPlain(session.DaysInYear), ""}},
  };
}

TagList StatementTags(const SessionRecord& session, bool additionalApyFormula) {
  TagList tags = CommonTags(session);
  const std::string term = session.CompoundNone ? "" : FormatPlain(session.CompoundingDays);
  tags.insert(tags.end(),
              {
                  {"^acctuser^", {EscapeHtml(session.AccountHolder), ""}},
                  {"^acctnum^", {EscapeHtml(session.AccountNumber), ""}},
                  {"^intcalc^", {session.UseAdb ? "ADB" : "Daily Balance", ""}},
                  {"^intcmpd^", {StatementCompounding(session), ""}},
                  {"^cmpdterm^", {term, ""}},
                  {"^addapy^", {additionalApyFormula ? "Additional APY" : "No Additional APY", ""}},
              });
  return tags;
}

std::string AccountTypeHeading(const SessionRecord& session) {
  if (session.AcctRegular) return "REGULAR RATE";
  if (session.AcctStepped) return "STEPPED RATE";
  if (session.AcctTierA) return "TIERING Method A";
  if (session.AcctTierB) return "TIERING Method B";
  return "";
}

}  // namespace corvane
