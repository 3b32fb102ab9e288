#include "Checks.h"

#include <QtWidgets>

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "platform/ProgramFolder.h"
#include "reports/DisclosureReport.h"
#include "reports/StatementReport.h"
#include "support/Clock.h"
#include "support/WholeFile.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementResultsWindow.h"

namespace corvane {

namespace {

bool AnyWindowShows() {
  const auto windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(),
                     [](const QWidget* window) { return window->isVisible(); });
}

bool IsEmpty(const QLineEdit* field) {
  return TextOf(field).empty() || TextOf(field) == kEmptyDateMask;
}

/// A field that does not show must hold nothing that could be computed or printed.
std::string StaleField(const Form* window) {
  if (!window || !window->isVisible()) return {};
  for (const QLineEdit* field : window->findChildren<QLineEdit*>()) {
    if (!field->isVisibleTo(window) && !IsEmpty(field)) {
      return "hidden " + field->objectName().toStdString() + " holds " + TextOf(field);
    }
  }
  return {};
}

/// A field that nobody can type into shows nothing, or what the entries before it make of it. Dates
/// are left out: they stay until the focus leaves the term that is typed in their place.
template <class Values>
std::string StaleDisabled(const Form* window, const std::function<Values()>& presentEntry) {
  if (!window || !window->isVisible()) return {};
  const Values present = presentEntry();
  for (const auto& [control, field] : Values::Fields()) {
    const auto* edit = window->findChild<QLineEdit*>(control);
    const bool isStale = !IsEmpty(edit) && TextOf(edit) != (present.*field).text;
    const bool isDate = !edit->inputMask().isEmpty();
    if (isStale && !isDate && !edit->isEnabled() && !(present.*field).enabled) {
      return "disabled " + std::string(control) + " holds " + TextOf(edit);
    }
  }
  return {};
}

/// The report on the disk, which the browser shows, is that of the account in the session.
std::string ForeignReport(const ReportNames& names, const ReportContent& content,
                          const Session& session) {
  const auto file = ReadWholeFile(session.dataFolder / names.outputName);
  const auto source = ReadWholeFile(ProgramFolder() / names.templateName);
  const auto* written = std::get_if<std::string>(&file);
  const auto* form = std::get_if<std::string>(&source);
  if (!written || !form) return "no report beside the results";
  const std::string own = corvane::TextOf(FillTemplate(LinesOf(*form), content).lines);
  return *written == own ? "" : "the report is not that of the account";
}

/// The figures shown are those that the entries give.
std::string ForeignResult(const DisclosureCheck& check) {
  DisclosureCheck again = check;
  again.result.reset();
  again.completed = 0;
  for (int i = 0; i < check.completed; ++i) {
    DisclosureEntry entry = check.entries.at(static_cast<std::size_t>(i));
    if (AttemptCalculation(again, entry).refusal) return "the entries of the result are refused";
  }
  if (!again.result || !check.result) return "no result";
  const auto& one = again.result->rows;
  const auto& other = check.result->rows;
  const bool same =
      std::equal(one.begin(), one.end(), other.begin(), other.end(),
                 [](const ResultRow& a, const ResultRow& b) {
                   return a.interest == b.interest && a.apy == b.apy && a.verdict == b.verdict;
                 });
  return same ? "" : "the result is not that of the entries";
}

template <class Window>
bool Shows(const WindowRegistry& windows) {
  const Window* window = windows.Find<Window>();
  return window && window->isVisible();
}

std::string WrongReport(const WindowRegistry& windows, const Session& session) {
  if (Shows<DisclosureResultsWindow>(windows)) {
    if (std::string fault = ForeignResult(session.disclosure); !fault.empty()) return fault;
    return ForeignReport(kDisclosureReport,
                         DisclosureReport(session.header, session.disclosure, Today()), session);
  }
  if (Shows<StatementResultsWindow>(windows)) {
    return ForeignReport(kStatementReport,
                         StatementReport(session.header, session.statement, Today()), session);
  }
  return {};
}

}  // namespace

std::string FaultOf(const WindowRegistry& windows, const Session& session) {
  if (windows.HasEnded()) return {};
  if (!AnyWindowShows()) return "no window shows, but the program has not ended";
  const auto* disclosure = windows.Find<DisclosureEntryWindow>();
  const auto* statement = windows.Find<StatementEntryWindow>();
  const StatementCheck& check = session.statement;
  const std::function ofDisclosure = [&] { return PresentEntry(session.disclosure); };
  const std::function ofStatement = [&] { return PresentEntry(check.setup, check.entry); };
  for (const std::string& fault :
       {StaleField(disclosure), StaleDisabled(disclosure, ofDisclosure), StaleField(statement),
        StaleDisabled(statement, ofStatement), WrongReport(windows, session)}) {
    if (!fault.empty()) return fault;
  }
  return {};
}

}  // namespace corvane
