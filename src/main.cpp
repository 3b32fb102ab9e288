#include <iostream>

#include <QApplication>

#include "platform/Arguments.h"
#include "platform/BrowserLoader.h"
#include "platform/EndRequests.h"
#include "platform/Pictures.h"
#include "support/ProgramVersion.h"
#include "windows/frame/WindowRegistry.h"

int main(int argc, char** argv) {
  // Before Qt, which ends the program where there is no display.
  if (const auto answer = corvane::AnswerTo({argv, static_cast<size_t>(argc)})) {
    std::cout << *answer;
    return 0;
  }
  corvane::PrepareBrowser();
  QApplication application(argc, argv);
  QApplication::setApplicationName("corvane");
  QApplication::setApplicationVersion(corvane::kProgramVersion);
  QApplication::setDesktopFileName("corvane");
  QApplication::setWindowIcon(corvane::ProgramIcon());

  corvane::Session session;
  corvane::WindowRegistry windows(session);
  const corvane::EndRequests endRequests;
  QObject::connect(&endRequests, &corvane::EndRequests::Requested,
                   [&windows] { windows.EndProcess(); });
  windows.routes().ShowDisclaimer();
  return QApplication::exec();
}
