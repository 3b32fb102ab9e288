#include "statement/StatementContext.h"

#include "account/ContextText.h"
#include "account/SlipNotice.h"

namespace corvane {

namespace {

using Entry = StatementEntry;

bool HasDates(const Entry& entry) {
  return ParseDate(entry.txtDateStart.text) && ParseDate(entry.txtDateEnd.text);
}

std::string DatesText(const Entry& entry) {
  return HasDates(entry) ? entry.txtDateStart.text + " to " + entry.txtDateEnd.text : "";
}

int DaysOf(const Entry& entry) {
  return WholeNumber(entry.Days(BasisColumn(entry.basis)).text).value_or(0);
}

std::string DaysText(const Entry& entry) {
  const int days = DaysOf(entry);
  return days > 0 ? "period of " + CountText(days, "day") : "";
}

std::string MethodText(const Entry& entry) {
  if (!entry.method) return "";
  return entry.UsesAdb() ? "average daily balance method" : "daily balance method";
}

/// What is asked for in the order of the window, while it is missing.
struct Question {
  bool (*isOpen)(const Entry&);
  const char* text;
};

constexpr Question kQuestions[] = {
    {[](const Entry& entry) { return DaysOf(entry) <= 0 && !HasDates(entry); },
     "Type or pick the two dates of the period, or type its days."},
    {[](const Entry& entry) { return !entry.method; },
     "Choose the method by which the interest is computed."},
    {[](const Entry& entry) { return entry.txtDClApy.IsEmpty(); },
     "Type the APY that the statement shows."},
    {[](const Entry& entry) { return entry.Average(BasisColumn(entry.basis)).IsEmpty(); },
     "Type the average balance, or Compute ADB and Interest works it out from the days."},
    {[](const Entry& entry) { return entry.txtIntAmt.IsEmpty(); },
     "Type the interest, or Compute ADB and Interest works it out from the days."},
};

}  // namespace

std::string ContextOf(const AccountHeader& header, const StatementSetup& setup) {
  std::vector<std::string> parts = HeaderParts(header);
  parts.push_back(CompoundingText({setup.compounding, CompoundingDays(setup)}));
  for (std::string& part : YearParts(setup.year)) parts.push_back(std::move(part));
  return JoinParts(parts);
}

std::string ContextOf(const AccountHeader& header, const StatementCheck& check) {
  const StatementEntry& entry = check.entry;
  const std::string parts[] = {ContextOf(header, check.setup), DatesText(entry), DaysText(entry),
                               MethodText(entry)};
  return JoinParts(parts);
}

std::string NextStepOfEntry(const StatementEntry& entry) {
  for (const Question& question : kQuestions) {
    if (question.isOpen(entry)) return question.text;
  }
  return "Calculate computes the APY earned and compares it.";
}

std::optional<std::string> SlipOfResults(const StatementCheck& check) {
  return FactorNotice(check.entry.txtDRFactor.text);
}

std::string NextStepOfResults(const StatementCheck& check) {
  const char* detail = DetailOf(check) ? " Show Detail lists the days." : "";
  return std::string("Computed. Back returns to the period, New Account starts another account.") +
         detail;
}

}  // namespace corvane
