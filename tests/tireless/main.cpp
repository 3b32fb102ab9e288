// A person who never tires of trying what the windows bear.
//   corvane_tireless SEED COUNT     does so many acts, each checked; a failing run is shortened
//   corvane_tireless FILE           does the acts of a file, one a line
// Exit status 0 when nothing broke.

#include <cstdio>

#include <QApplication>
#include <QTemporaryDir>

#include "Run.h"
#include "Shorten.h"
#include "platform/HelpView.h"
#include "platform/WebView.h"

namespace {

int DoActsOf(const char* file, int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(name, home.path().toUtf8());
  }
  corvane::PrepareWebView();
  corvane::PrepareHelpView();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return corvane::Run(corvane::ReadActs(file));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2) return DoActsOf(argv[1], argc, argv);
  if (argc != 3) return std::fputs("corvane_tireless SEED COUNT | FILE\n", stderr), 2;
  const auto seed = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  return corvane::TryAndShorten(argv[0], corvane::ActsOf(seed, std::atoi(argv[2])));
}
