#include "windows/statement/StatementResultsWindow.h"

#include <QtWidgets>

#include "reports/StatementReport.h"
#include "statement/StatementContext.h"
#include "support/Clock.h"
#include "ui_StatementResultsWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

}  // namespace

StatementResultsWindow::StatementResultsWindow(WindowRegistry& registry)
    : ResultsWindow(registry, Role::Main, kStatementReport),
      ui_(std::make_unique<Ui::StatementResultsWindow>()) {
  ui_->setupUi(this);
  PlaceView(ui_->fraReport, "WebViewS");
  OnClick(ui_->cmdDetail, [this] { cmdDetail_Click(); });
  OnClick(ui_->cmdBack, [this] { routes().BackFromStatementResults(); });
  OnClick(ui_->cmdAcct, [this] { routes().NewStatement(); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdExit->click(); });
  AddFileItems();
  EnterPresses({ui_->cmdBack});
  BindCommonMenus(kHelpContext);
}

StatementResultsWindow::~StatementResultsWindow() = default;

void StatementResultsWindow::Form_Load() {
  ui_->cmdDetail->setEnabled(DetailOf(session().statement) != nullptr);
  ShowNextStep(NextStepOfResults(session().statement));
}

void StatementResultsWindow::Form_Activate() {
  FocusField(ui_->cmdBack);
  if (const auto slip = SlipOfResults(session().statement)) ShowHint(*slip);
  BuildReport();
  FocusReport();
}

AddOutcome StatementResultsWindow::AddTo(const std::filesystem::path& file) {
  return AddToFile(file, session().header, session().statement);
}

ReportContent StatementResultsWindow::Content() {
  return StatementReport(session().header, session().statement, Today());
}

void StatementResultsWindow::cmdDetail_Click() {
  routes().ShowInterestReport(DetailOf(session().statement)->daily);
}

}  // namespace corvane
