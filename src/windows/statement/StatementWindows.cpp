#include "windows/statement/StatementWindows.h"

#include "account/AccountHeader.h"
#include "account/SessionRecord.h"
#include "statement/StatementReset.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/InterestReportWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementResultsWindow.h"
#include "windows/statement/StatementSetupWindow.h"

namespace corvane {

void DiscardAccountWindows(WindowRegistry& windows) {
  windows.Discard<InterestReportWindow>();
  windows.Discard<DailyBalancesWindow>();
  windows.Discard<StatementResultsWindow>();
  windows.Discard<StatementEntryWindow>();
  windows.Discard<TierTableWindow>();
}

void NewStatementAccount(WindowRegistry& windows) {
  ResetStatement(windows.Session());
  DiscardAccountWindows(windows);
}

void ShowNewStatementAccount(WindowRegistry& windows) {
  CaptureUserInfo(windows.Session(), HeaderMode::KeepInstitution);
  auto& setup = windows.Get<StatementSetupWindow>();
  setup.ResetOptions();
  setup.ShowAccountHeader();
  windows.Show<StatementSetupWindow>();
  NewStatementAccount(windows);
}

void LeaveStatements(WindowRegistry& windows) {
  windows.Show<MainMenu>();
  CaptureUserInfo(windows.Session(), HeaderMode::ClearAll);
  ClearDayTables(windows.Session());
  DiscardAccountWindows(windows);
  windows.Discard<StatementSetupWindow>();
}

}  // namespace corvane
