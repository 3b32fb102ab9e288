#include <QApplication>

#include "platform/Pictures.h"
#include "platform/WebView.h"
#include "shell/SessionRecord.h"
#include "shell/WindowRegistry.h"
#include "shell/frmSplash.h"

int main(int argc, char** argv) {
  corvane::PrepareWebView();
  QApplication application(argc, argv);
  QApplication::setApplicationName("corvane");
  QApplication::setApplicationVersion(CORVANE_VERSION);
  QApplication::setWindowIcon(corvane::ProgramIcon());

  corvane::SessionRecord session;
  corvane::WindowRegistry windows(session);
  windows.Show<corvane::frmSplash>();
  return QApplication::exec();
}
