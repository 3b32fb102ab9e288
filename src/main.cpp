#include <QApplication>

#include "account/SessionRecord.h"
#include "platform/Pictures.h"
#include "platform/WebView.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/start/DisclaimerWindow.h"

int main(int argc, char** argv) {
  corvane::PrepareWebView();
  QApplication application(argc, argv);
  QApplication::setApplicationName("corvane");
  QApplication::setApplicationVersion(CORVANE_VERSION);
  QApplication::setWindowIcon(corvane::ProgramIcon());

  corvane::SessionRecord session;
  corvane::WindowRegistry windows(session);
  windows.Show<corvane::DisclaimerWindow>();
  return QApplication::exec();
}
