#include <gtest/gtest.h>
#include <QApplication>
#include <QTemporaryDir>

#include "platform/BrowserLoader.h"

/// Runs the window tests without a display, in a home folder of their own.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  corvane::PrepareBrowser();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
