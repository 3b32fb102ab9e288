#include "windows/start/DisclaimerWindow.h"

#include <QtWidgets>

#include "platform/Pictures.h"
#include "ui_DisclaimerWindow.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/AboutWindow.h"
#include "windows/start/MainMenu.h"

namespace corvane {

DisclaimerWindow::DisclaimerWindow(WindowRegistry& windows)
    : Form(windows, Role::Main), ui_(std::make_unique<Ui::DisclaimerWindow>()) {
  ui_->setupUi(this);
  OnClick(ui_->cmdOK, [this] { cmdOK_Click(); });
  OnClick(ui_->cmdAbout, [this] { Windows().Show<AboutWindow>(); });
  OnClick(ui_->cmdExit, [this] { Windows().EndProcess(); });
}

DisclaimerWindow::~DisclaimerWindow() = default;

void DisclaimerWindow::Form_Load() {
  ui_->Image1->setPixmap(ProgramPicture());
  ui_->cmdOK->setFocus();
}

void DisclaimerWindow::cmdOK_Click() {
  Windows().Show<MainMenu>();
  Windows().CloseWindowForNavigation(*this);
}

}  // namespace corvane
