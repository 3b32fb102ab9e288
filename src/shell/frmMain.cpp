#include "shell/frmMain.h"

#include <QtWidgets>

#include "disclosure/frmAcctAdvertAPY.h"
#include "platform/Pictures.h"
#include "platform/ProgramFolder.h"
#include "shell/DataFolder.h"
#include "shell/SessionRecord.h"
#include "shell/SessionStart.h"
#include "shell/WindowRegistry.h"
#include "statement/StatementReset.h"
#include "statement/StatementWindows.h"
#include "statement/frmStatementUseandSelect.h"
#include "support/IniFile.h"
#include "support/clsFormCenter.h"
#include "ui_frmMain.h"

namespace corvane {

namespace {

constexpr int kMainHelpContext = 1;
constexpr const char* kOptionsSection = "Options";
constexpr const char* kStartupKey = "Startup Intro";

}  // namespace

frmMain::frmMain(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::frmMain>()) {
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

frmMain::~frmMain() = default;

void frmMain::Form_Load() {
  const std::string startup = ReadIniValue(kOptionsSection, kStartupKey, "No", SettingsFile());
  ui_->mnuShowTitle->setChecked(startup != "No");
  clsFormCenter().CenterForm(*this);
  PrepareSession(Session());
  ui_->cmdAcctAdv->setFocus();
}

void frmMain::cmdAcctAdv_Click() {
  auto& setup = Windows().Get<frmAcctAdvertAPY>();
  setup.ShowAccountHeader();
  setup.SelectStartOptions();
  Windows().Show<frmAcctAdvertAPY>();
  StartWorkflow(Session(), 0);
  Windows().CloseWindowForNavigation(*this);
}

void frmMain::cmdStatement_Click() {
  StartStatements(Session());
  DiscardAccountWindows(Windows());
  StartWorkflow(Session(), 1);
  auto& setup = Windows().Get<frmStatementUseandSelect>();
  setup.ShowAccountHeader();
  setup.SelectStartOptions();
  Windows().Show<frmStatementUseandSelect>();
  hide();
}

void frmMain::cmdExit_Click() {
  Windows().EndProgram();
}

void frmMain::mnuShowTitle_Click() {
  // The item toggles its own check mark before it acts.
  WriteIniValue(kOptionsSection, kStartupKey, ui_->mnuShowTitle->isChecked() ? "Yes" : "No",
                SettingsFile());
}

void frmMain::Form_KeyDown(int key) {
  if (key == Qt::Key_Escape) {
    Windows().EndProcess();
  } else {
    Session().UnloadEndsProgram = true;
  }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
  // The filter sees every event of the program, also those of the browser's own objects.
  if (event->type() == QEvent::KeyPress) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && widget->window() == this) Form_KeyDown(static_cast<QKeyEvent*>(event)->key());
  }
  return Form::eventFilter(watched, event);
}

void frmMain::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  constexpr int kMargin = 10;
  const QRect inner = ui_->centralWidget->rect();
  if (inner.width() > 0 && inner.height() > 0) {
    shape1_->setGeometry(inner.adjusted(kMargin, kMargin, -kMargin, -kMargin));
  }
}

}  // namespace corvane
