#include "windows/start/MainMenu.h"

#include <QtWidgets>

#include "platform/ProgramFolder.h"
#include "reports/DataFolder.h"
#include "support/IniFile.h"
#include "ui_MainMenu.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 1;
constexpr const char* kOptionsSection = "Options";
constexpr const char* kStartupKey = "Startup Intro";

}  // namespace

MainMenu::MainMenu(WindowRegistry& registry)
    : Form(registry, Role::Main), ui_(std::make_unique<Ui::MainMenu>()) {
  session().dataFolder = MakeDataFolder(DocumentsFolder()).path;
  ui_->setupUi(this);
  shape1_ = new QFrame(ui_->centralWidget);
  shape1_->setObjectName("Shape1");
  shape1_->setFrameShape(QFrame::StyledPanel);
  shape1_->setAttribute(Qt::WA_TransparentForMouseEvents);
  shape1_->lower();
  OnClick(ui_->cmdAcctAdv, [this] { routes().StartDisclosure(); });
  OnClick(ui_->cmdStatement, [this] { routes().StartStatement(); });
  OnClick(ui_->cmdHelp, [this] { ShowHelpTopic(kHelpContext); });
  OnClick(ui_->cmdExit, [this] { windows().EndProgram(); });
  OnMenu(ui_->mnuShowTitle, [this] { mnuShowTitle_Click(); });
  OnMenu(ui_->mnuAbout, [this] { routes().ShowAbout(); });
  OnMenu(ui_->mnuCheckFile, [this] { routes().ShowTable(); });
  OnDrop([this](const auto& files) { routes().CheckFiles(files); });
  BindCommonMenus(kHelpContext);
}

MainMenu::~MainMenu() = default;

void MainMenu::Form_Load() {
  const std::string startup = ReadIniValue(kOptionsSection, kStartupKey, "No", SettingsFile());
  ui_->mnuShowTitle->setChecked(startup != "No");
  ui_->cmdAcctAdv->setFocus();
}

void MainMenu::mnuShowTitle_Click() {
  // The item toggles its own check mark before it acts.
  WriteIniValue(kOptionsSection, kStartupKey, ui_->mnuShowTitle->isChecked() ? "Yes" : "No",
                SettingsFile());
}

void MainMenu::keyPressEvent(QKeyEvent* event) {
  // The menu bar keeps an Escape that leaves it; a held one goes on with that.
  if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) return windows().EndProcess();
  Form::keyPressEvent(event);
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
