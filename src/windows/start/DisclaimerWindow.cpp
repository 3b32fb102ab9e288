#include "windows/start/DisclaimerWindow.h"

#include <QtWidgets>

#include "platform/Pictures.h"
#include "ui_DisclaimerWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 5;
/// Height and width of the picture, in lines of text.
constexpr int kPictureLines = 6;

}  // namespace

DisclaimerWindow::DisclaimerWindow(WindowRegistry& registry)
    : Form(registry, Role::Main), ui_(std::make_unique<Ui::DisclaimerWindow>()) {
  ui_->setupUi(this);
  OnClick(ui_->cmdOK, [this] { routes().LeaveDisclaimer(); });
  OnClick(ui_->cmdAbout, [this] { routes().OpenAbout(); });
  OnClick(ui_->cmdExit, [this] { windows().EndProcess(); });
  EnterPresses({ui_->cmdOK});
  BindHelp(kHelpContext);
}

DisclaimerWindow::~DisclaimerWindow() = default;

void DisclaimerWindow::Form_Load() {
  ui_->Image1->setPixmap(ProgramPicture());
  ui_->Image1->setFixedSize(QSize(1, 1) * kPictureLines * fontMetrics().lineSpacing());
  ui_->cmdOK->setFocus();
}

}  // namespace corvane
