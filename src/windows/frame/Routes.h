#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "account/Refusal.h"
#include "account/TierTable.h"
#include "statement/DailyBalances.h"

namespace corvane {

class WindowRegistry;
struct OpenedCheck;
struct ReportContent;
struct Session;

/// Every way from one window to another: who opens whom, what is kept, what is closed. A window
/// that is left for another main window closes; what it has to keep stands in the session.
class Routes {
 public:
  explicit Routes(WindowRegistry& windows) : windows_(windows) {}

  // Start.
  void ShowDisclaimer();
  void LeaveDisclaimer();
  void OpenAbout();  ///< beside the disclaimer
  void ShowAbout();  ///< above any other window, which waits
  /// The help, at the topic of a context number, beside every other window; or why it has none.
  std::optional<Refusal> ShowHelp(int context);
  void StartDisclosure();  ///< a new account, at the disclosure setup
  void StartStatement();   ///< a new account, at the statement setup

  // To the main menu, which also closes the help.
  void ShowMainMenu();               ///< nothing of the account is kept
  void ShowMainMenuKeepingHeader();  ///< but for the identification

  // A whole file, whose table stays until another file is checked.
  void ShowTable();  ///< asks for a file where there is none
  bool HasTable() const;
  void CheckFiles(const std::vector<std::filesystem::path>& files);
  void ShowPortfolioReport(const ReportContent& content);  ///< above the table
  void OpenCheck(const OpenedCheck& opened);  ///< at its results, or where it is refused

  // A disclosure or advertisement.
  void ContinueDisclosureSetup();  ///< to the tier table or the entry
  void BackFromDisclosureEntry();  ///< to the tier table or the setup
  void ShowDisclosureResults();
  void BackFromDisclosureResults();
  void NewDisclosure();  ///< the setup of another account of the same institution

  // The tier table, of either workflow.
  void ContinueTierTable(const TierTable& tiers);  ///< to the entry of the workflow
  void BackFromTierTable(const TierTable& tiers);  ///< to its setup

  // A periodic statement.
  void ContinueStatementSetup();  ///< to the tier table or the period
  void BackFromStatementEntry();  ///< to the tier table or the setup
  /// Lets the person enter the days, and gives what was computed of them, nothing when the window
  /// was closed without an average.
  std::optional<ComputedDays> EnterDays(DailyBalances& daily);
  void ShowInterestReport(const DailyBalances& daily);
  void ShowStatementResults();
  void BackFromStatementResults();
  void NewStatement();  ///< the setup of another account of the same institution

 private:
  /// Shows a main window in place of the one that is left.
  template <class Window>
  void Go();
  template <class Window>
  void GoTelling(const std::string& told);
  /// Shows the window that an opened check stands at, with what was told of it.
  template <class Setup, class Entry, class Results>
  void GoTo(const OpenedCheck& opened);
  void GoToMainMenu();
  Session& session();

  WindowRegistry& windows_;
};

}  // namespace corvane
