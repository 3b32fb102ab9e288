#include "windows/frame/Routes.h"

#include "disclosure/EntrySequence.h"
#include "platform/BrowserLoader.h"
#include "platform/ProgramFolder.h"
#include "portfolio/OpenedCheck.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/help/HelpWindow.h"
#include "windows/portfolio/PortfolioReportWindow.h"
#include "windows/portfolio/PortfolioWindow.h"
#include "windows/start/AboutWindow.h"
#include "windows/start/DisclaimerWindow.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/InterestReportWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementResultsWindow.h"
#include "windows/statement/StatementSetupWindow.h"

namespace corvane {

template <class Window>
void Routes::Go() {
  if (windows_.HasEnded()) return;
  windows_.CloseOtherMainWindows(windows_.Show<Window>());
}

template <class Window>
void Routes::GoTelling(const std::string& told) {
  Go<Window>();
  if (!told.empty()) windows_.Get<Window>().ShowHint(told);
}

template <class Setup, class Entry, class Results>
void Routes::GoTo(const OpenedCheck& opened) {
  switch (opened.stage) {
    case CheckStage::Setup:
      return GoTelling<Setup>(opened.told);
    case CheckStage::TierTable:
      return GoTelling<TierTableWindow>(opened.told);
    case CheckStage::Entry:
      return GoTelling<Entry>(opened.told);
    case CheckStage::Results:
      return GoTelling<Results>(opened.told);
  }
}

Session& Routes::session() {
  return windows_.session();
}

void Routes::ShowDisclaimer() {
  Go<DisclaimerWindow>();
}

void Routes::LeaveDisclaimer() {
  Go<MainMenu>();
}

void Routes::OpenAbout() {
  windows_.Show<AboutWindow>();
}

void Routes::ShowAbout() {
  windows_.RunModal(windows_.Get<AboutWindow>());
}

std::optional<Refusal> Routes::ShowHelp(int context) {
  auto refusal = windows_.Get<HelpWindow>().Open(HelpFile(), context);
  if (refusal) {
    windows_.Discard<HelpWindow>();
  } else {
    windows_.Show<HelpWindow>();
  }
  return refusal;
}

void Routes::StartDisclosure() {
  session().workflow = Workflow::Disclosure;
  session().disclosure = {};
  Go<DisclosureSetupWindow>();
  WarmBrowser();
}

void Routes::StartStatement() {
  session().workflow = Workflow::Statement;
  session().statement = {};
  session().statement.setup = StatementSetupAtStart();
  Go<StatementSetupWindow>();
  WarmBrowser();
}

void Routes::GoToMainMenu() {
  windows_.Discard<HelpWindow>();
  Go<MainMenu>();
}

void Routes::ShowMainMenu() {
  session().header = {};
  session().disclosure = {};
  session().statement = {};
  GoToMainMenu();
}

void Routes::ShowTable() {
  Go<PortfolioWindow>();
  auto& window = windows_.Get<PortfolioWindow>();
  if (!window.HasFile()) window.ChooseFile();
}

bool Routes::HasTable() const {
  const auto* window = windows_.Find<PortfolioWindow>();
  return window && window->HasFile();
}

void Routes::CheckFiles(const std::vector<std::filesystem::path>& files) {
  Go<PortfolioWindow>();
  windows_.Get<PortfolioWindow>().CheckFiles(files);
}

void Routes::ShowPortfolioReport(const ReportContent& content) {
  auto& window = windows_.Get<PortfolioReportWindow>();
  window.ShowReport(content);
  windows_.RunModal(window);
}

void Routes::OpenCheck(const OpenedCheck& opened) {
  session().header = opened.header;
  if (const auto* statement = std::get_if<StatementCheck>(&opened.check)) {
    session().workflow = Workflow::Statement;
    session().statement = *statement;
    GoTo<StatementSetupWindow, StatementEntryWindow, StatementResultsWindow>(opened);
  } else {
    session().workflow = Workflow::Disclosure;
    session().disclosure = std::get<DisclosureCheck>(opened.check);
    GoTo<DisclosureSetupWindow, DisclosureEntryWindow, DisclosureResultsWindow>(opened);
  }
}

void Routes::ContinueDisclosureSetup() {
  if (session().disclosure.setup.IsTiered()) return Go<TierTableWindow>();
  Go<DisclosureEntryWindow>();
}

void Routes::BackFromDisclosureEntry() {
  if (session().disclosure.setup.IsTiered()) return Go<TierTableWindow>();
  Go<DisclosureSetupWindow>();
}

void Routes::ShowDisclosureResults() {
  Go<DisclosureResultsWindow>();
}

void Routes::BackFromDisclosureResults() {
  DisclosureCheck& check = session().disclosure;
  check.completed = EntryBehindResults(check) - 1;
  Go<DisclosureEntryWindow>();
}

void Routes::NewDisclosure() {
  session().header = session().header.OfNextAccount();
  // The next account of a bank is often set up like the last one.
  DisclosureCheck next;
  next.setup = session().disclosure.setup;
  session().disclosure = next;
  Go<DisclosureSetupWindow>();
}

void Routes::ShowMainMenuKeepingHeader() {
  session().disclosure = {};
  GoToMainMenu();
}

void Routes::ContinueTierTable(const TierTable& tiers) {
  if (session().workflow == Workflow::Statement) {
    session().statement.tiers = tiers;
    return Go<StatementEntryWindow>();
  }
  TakeTiers(session().disclosure, tiers);
  Go<DisclosureEntryWindow>();
}

void Routes::BackFromTierTable(const TierTable& tiers) {
  if (session().workflow == Workflow::Statement) {
    session().statement.tiers = tiers;
    return Go<StatementSetupWindow>();
  }
  TakeTiers(session().disclosure, tiers);
  Go<DisclosureSetupWindow>();
}

void Routes::ContinueStatementSetup() {
  if (IsTiered(session().statement.setup.kind)) return Go<TierTableWindow>();
  Go<StatementEntryWindow>();
}

void Routes::BackFromStatementEntry() {
  if (IsTiered(session().statement.setup.kind)) return Go<TierTableWindow>();
  Go<StatementSetupWindow>();
}

std::optional<ComputedDays> Routes::EnterDays(DailyBalances& daily) {
  auto& window = windows_.Get<DailyBalancesWindow>();
  std::optional<ComputedDays> computed;
  window.Edit(daily, computed);
  windows_.RunModal(window);
  return computed;
}

void Routes::ShowInterestReport(const DailyBalances& daily) {
  auto& window = windows_.Get<InterestReportWindow>();
  window.ShowDays(daily);
  windows_.RunModal(window);
}

void Routes::ShowStatementResults() {
  Go<StatementResultsWindow>();
}

void Routes::BackFromStatementResults() {
  session().statement.result.reset();
  session().statement.detail.reset();
  Go<StatementEntryWindow>();
}

void Routes::NewStatement() {
  session().header = session().header.OfNextAccount();
  session().statement = NewStatementCheck();
  Go<StatementSetupWindow>();
}

}  // namespace corvane
