#include "windows/start/MainMenu.h"

#include <QtWidgets>

#include "account/SessionRecord.h"
#include "account/SessionStart.h"
#include "platform/FormCenter.h"
#include "platform/Pictures.h"
#include "platform/ProgramFolder.h"
#include "reports/DataFolder.h"
#include "statement/StatementReset.h"
#include "support/IniFile.h"
#include "ui_MainMenu.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/statement/StatementSetupWindow.h"
#include "windows/statement/StatementWindows.h"

namespace corvane {

namespace {

constexpr int kMainHelpContext = 1;
constexpr const char* kOptionsSection = "Options";
constexpr const char* kStartupKey = "Startup Intro";

}  // namespace

MainMenu::MainMenu(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::MainMenu>()) {
  EnsureDataFolder(Session(), DocumentsFolder());
  ui_->setupUi(this);
  shape1_ = new QFrame(ui_->centralWidget);
  shape1_->setObjectName("Shape1");
  shape1_->setFrameShape(QFrame::StyledPanel);
  shape1_->setAttribute(Qt::WA_TransparentForMouseEvents);
  shape1_->lower();
  OnClick(ui_->cmdAcctAdv, [this] { cmdAcctAdv_Click(); });
  OnClick(ui_->cmdStatement, [this] { cmdStatement_Click(); });
  OnClick(ui_->cmdHelp, [this] { ShowHelpTopic(kMainHelpContext); });
  OnClick(ui_->cmdExit, [this] { cmdExit_Click(); });
  OnMenu(ui_->mnuExit, [this] { ui_->cmdExit->click(); });
  OnMenu(ui_->mnuShowTitle, [this] { mnuShowTitle_Click(); });
  OnMenu(ui_->mnuHelpTopics, [this] { ShowHelpTopic(kMainHelpContext); });
  OnMenu(ui_->mnuAbout, [this] { ShowAbout(); });
  qApp->installEventFilter(this);
}

MainMenu::~MainMenu() = default;

void MainMenu::Form_Load() {
  const std::string startup = ReadIniValue(kOptionsSection, kStartupKey, "No", SettingsFile());
  ui_->mnuShowTitle->setChecked(startup != "No");
  clsFormCenter().CenterForm(*this);
  PrepareSession(Session());
  ui_->cmdAcctAdv->setFocus();
}

void MainMenu::cmdAcctAdv_Click() {
  auto& setup = Windows().Get<DisclosureSetupWindow>();
  setup.ShowAccountHeader();
  setup.SelectStartOptions();
  Windows().Show<DisclosureSetupWindow>();
  StartWorkflow(Session(), 0);
  Windows().CloseWindowForNavigation(*this);
}

void MainMenu::cmdStatement_Click() {
  StartStatements(Session());
  DiscardAccountWindows(Windows());
  StartWorkflow(Session(), 1);
  auto& setup = Windows().Get<StatementSetupWindow>();
  setup.ShowAccountHeader();
  setup.SelectStartOptions();
  Windows().Show<StatementSetupWindow>();
  hide();
}

void MainMenu::cmdExit_Click() {
  Windows().EndProgram();
}

void MainMenu::mnuShowTitle_Click() {
  // The item toggles its own check mark before it acts.
  WriteIniValue(kOptionsSection, kStartupKey, ui_->mnuShowTitle->isChecked() ? "Yes" : "No",
                SettingsFile());
}

void MainMenu::Form_KeyDown(int key) {
  if (key == Qt::Key_Escape) {
    Windows().EndProcess();
  } else {
    Session().UnloadEndsProgram = true;
  }
}

bool MainMenu::eventFilter(QObject* watched, QEvent* event) {
  // The filter sees every event of the program, also those of the browser's own objects.
  if (event->type() == QEvent::KeyPress) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && widget->window() == this) Form_KeyDown(static_cast<QKeyEvent*>(event)->key());
  }
  return Form::eventFilter(watched, event);
}

void MainMenu::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  constexpr int kMargin = 10;
  const QRect inner = ui_->centralWidget->rect();
  if (inner.width() > 0 && inner.height() > 0) {
    shape1_->setGeometry(inner.adjusted(kMargin, kMargin, -kMargin, -kMargin));
  }
}

}  // namespace corvane
