#include "shell/frmSplash.h"

#include <QtWidgets>

#include "platform/Pictures.h"
#include "shell/WindowRegistry.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "ui_frmSplash.h"

namespace corvane {

frmSplash::frmSplash(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::frmSplash>()) {
  ui_->setupUi(this);
  OnClick(ui_->cmdOK, [this] { cmdOK_Click(); });
  OnClick(ui_->cmdAbout, [this] { Windows().Show<frmAbout>(); });
  OnClick(ui_->cmdExit, [this] { Windows().EndProcess(); });
}

frmSplash::~frmSplash() = default;

void frmSplash::Form_Load() {
  ui_->Image1->setPixmap(ProgramPicture());
  ui_->cmdOK->setFocus();
}

void frmSplash::cmdOK_Click() {
  Windows().Show<frmMain>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
