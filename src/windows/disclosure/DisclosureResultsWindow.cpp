#include "windows/disclosure/DisclosureResultsWindow.h"

#include <QtWidgets>

#include "disclosure/EntrySlips.h"
#include "disclosure/NextStep.h"
#include "reports/DisclosureReport.h"
#include "support/Clock.h"
#include "ui_DisclosureResultsWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 15;

}  // namespace

DisclosureResultsWindow::DisclosureResultsWindow(WindowRegistry& registry)
    : ResultsWindow(registry, Role::Main, kDisclosureReport),
      ui_(std::make_unique<Ui::DisclosureResultsWindow>()) {
  ui_->setupUi(this);
  PlaceView(ui_->fraReport, "WebView");
  OnClick(ui_->cmdBack, [this] { routes().BackFromDisclosureResults(); });
  OnClick(ui_->cmdAcct, [this] { routes().NewDisclosure(); });
  OnClick(ui_->cmdExit, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuNewAccount, [this] { ui_->cmdAcct->click(); });
  OnMenu(ui_->mnuMain, [this] { routes().ShowMainMenuKeepingHeader(); });
  AddFileItems();
  EnterPresses({ui_->cmdBack});
  BindCommonMenus(kHelpContext);
}

DisclosureResultsWindow::~DisclosureResultsWindow() = default;

void DisclosureResultsWindow::Form_Activate() {
  FocusField(ui_->cmdBack);
  ShowNextStep(NextStepOfResults(session().disclosure));
  if (const auto slip = SlipOfResults(session().disclosure)) ShowHint(*slip);
  BuildReport();
  FocusReport();
}

AddOutcome DisclosureResultsWindow::AddTo(const std::filesystem::path& file) {
  return AddToFile(file, session().header, session().disclosure);
}

ReportContent DisclosureResultsWindow::Content() {
  return DisclosureReport(session().header, session().disclosure, Today());
}

}  // namespace corvane
