#include "statement/StatementWindows.h"

#include "platform/MessageBox.h"
#include "shell/AccountHeader.h"
#include "shell/ProgramTitle.h"
#include "shell/SessionRecord.h"
#include "shell/WindowRegistry.h"
#include "shell/frmMain.h"
#include "statement/StatementReset.h"
#include "statement/frmCallStatement.h"
#include "statement/frmDisplayResultsStatement.h"
#include "statement/frmInterestReport.h"
#include "statement/frmInterestbyDay.h"
#include "statement/frmStatementUseandSelect.h"

namespace corvane {

void DiscardAccountWindows(WindowRegistry& windows) {
  windows.Discard<frmInterestReport>();
  windows.Discard<frmInterestbyDay>();
  windows.Discard<frmDisplayResultsStatement>();
  windows.Discard<frmCallStatement>();
}

void NewStatementAccount(WindowRegistry& windows) {
  ResetStatement(windows.Session());
  DiscardAccountWindows(windows);
}

void ShowNewStatementAccount(WindowRegistry& windows) {
  CaptureUserInfo(windows.Session(), HeaderMode::KeepInstitution);
  auto& setup = windows.Get<frmStatementUseandSelect>();
  setup.ResetOptions();
  setup.ShowAccountHeader();
  windows.Show<frmStatementUseandSelect>();
  NewStatementAccount(windows);
}

void LeaveStatements(WindowRegistry& windows) {
  windows.Show<frmMain>();
  CaptureUserInfo(windows.Session(), HeaderMode::ClearAll);
  ClearDayTables(windows.Session());
  DiscardAccountWindows(windows);
  windows.Discard<frmStatementUseandSelect>();
}

bool ShowTierTable(Form& window) {
  ShowMessage(&window, "Statements of tiered accounts are not part of this version yet.",
              kProgramTitle, MessageIcon::None);
  return false;
}

}  // namespace corvane
