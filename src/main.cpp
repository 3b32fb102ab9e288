#include <QApplication>

#include "platform/HelpView.h"
#include "platform/Pictures.h"
#include "platform/WebView.h"
#include "windows/frame/WindowRegistry.h"

int main(int argc, char** argv) {
  corvane::PrepareWebView();
  corvane::PrepareHelpView();
  QApplication application(argc, argv);
  QApplication::setApplicationName("corvane");
  QApplication::setApplicationVersion(CORVANE_VERSION);
  QApplication::setWindowIcon(corvane::ProgramIcon());

  corvane::Session session;
  corvane::WindowRegistry windows(session);
  windows.routes().ShowDisclaimer();
  return QApplication::exec();
}
