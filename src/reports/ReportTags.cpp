#include "reports/ReportTags.h"

#include "platform/Clock.h"
#include "reports/HtmlText.h"
#include "shell/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {

TagList CommonTags(const SessionRecord& session) {
  return {
      {"^instname^", {EscapeHtml(session.InstitutionName), ""}},
      {"^depname^", {EscapeHtml(session.AccountDescription), ""}},
      {"^rundate^", {FormatDate(Today()), ""}},
      {"^drf^", {FormatPlain(session.DaysInYear), ""}},
  };
}

std::string AccountTypeHeading(const SessionRecord& session) {
  if (session.AcctRegular) return "REGULAR RATE";
  if (session.AcctStepped) return "STEPPED RATE";
  if (session.AcctTierA) return "TIERING Method A";
  if (session.AcctTierB) return "TIERING Method B";
  return "";
}

}  // namespace corvane
