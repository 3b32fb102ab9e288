#include "windows/start/AboutWindow.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "platform/Pictures.h"
#include "platform/ProgramFolder.h"
#include "platform/SystemInfo.h"
#include "support/Paths.h"
#include "support/ProgramTitle.h"
#include "support/ProgramVersion.h"
#include "ui_AboutWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 6;
/// Height and width of the picture, in lines of text.
constexpr int kPictureLines = 4;
constexpr const char* kSupportContact = "corvane-support@example.org";

}  // namespace

AboutWindow::AboutWindow(WindowRegistry& registry)
    : Form(registry, Role::Secondary), ui_(std::make_unique<Ui::AboutWindow>()) {
  ui_->setupUi(this);
  OnClick(ui_->cmdOK, [this] { windows().Close(*this); });
  OnClick(ui_->cmdSysInfo, [this] { cmdSysInfo_Click(); });
  EnterPresses({ui_->cmdOK});
  BindHelp(kHelpContext);
}

AboutWindow::~AboutWindow() = default;

void AboutWindow::Form_Load() {
  const QString title = kProgramTitle;
  setWindowTitle("About " + title);
  ui_->picIcon->setPixmap(ProgramIcon().pixmap(128));
  ui_->picIcon->setFixedSize(QSize(1, 1) * kPictureLines * fontMetrics().lineSpacing());
  ui_->lblTitle->setText(title);
  ui_->lblVersion->setText(QString("Version ") + kProgramVersion);
  const QString folder = QString::fromStdString(PathText(ProgramFolder()));
  ui_->TextConfig->setPlainText(QString("To report problems, contact:\r\n\t%1\r\n\r\n"
                                        "Application Path=%2\r\n")
                                    .arg(kSupportContact, folder));
  ui_->cmdOK->setFocus();
}

void AboutWindow::cmdSysInfo_Click() {
  if (StartSysInfo()) return;
  ShowMessage(this, "System Information Is Unavailable At This Time", kProgramTitle,
              QMessageBox::NoIcon);
}

}  // namespace corvane
