#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <thread>

#include "portfolio/CheckRun.h"
#include "support/ProgramVersion.h"

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

/// The first Ctrl+C ends the run with what is complete, a second one at once.
void Interrupt(int signal) {
  interrupted = true;
  std::signal(signal, SIG_DFL);
}

/// The end of the terminal or of the system is such an interruption too, but for what the program
/// was started to ignore, as nohup does it.
void HandleInterruptions() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    if (std::signal(signal, Interrupt) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

void AddOptions(CLI::App& app, corvane::CheckArguments& arguments) {
  using corvane::Only;
  app.add_option("FILE", arguments.files, "Files to check; \"-\" reads standard input")->required();
  app.add_option("-o,--output", arguments.output,
                 "Where the results go instead of standard output");
  app.add_option("--balances", arguments.balances, "Daily balances of the statements");
  app.add_option("--report", arguments.report, "Writes a report (HTML)");
  app.add_option("--only", arguments.run.only,
                 "Writes only the accounts with violations, or refused")
      ->option_text("violations|refused")
      ->transform(CLI::CheckedTransformer(std::map<std::string, Only>{
          {"violations", Only::Violations}, {"refused", Only::Refused}}));
  app.add_option("--threads", arguments.run.threads, "How many threads check")
      ->check(CLI::Range(1, 256));
  app.add_flag("--progress,!--no-progress", arguments.showsProgress,
               "Shows the progress; on by itself on a terminal");
  app.set_version_flag("--version", std::string("corvane-check ") + corvane::kProgramVersion);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app(
      "Checks disclosures and statements of a file by Regulation DD, Appendix A.\n"
      "Exit status: 0 all OK, 1 a violation, 2 a refused row, 3 a file that cannot be read "
      "or written.",
      "corvane-check");
  corvane::CheckArguments arguments;
  arguments.run.threads = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  arguments.showsProgress = isatty(STDERR_FILENO) == 1;
  AddOptions(app, arguments);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : static_cast<int>(corvane::ExitStatus::FileError);
  }
  HandleInterruptions();
  return static_cast<int>(corvane::CheckRun(std::move(arguments), interrupted).Run());
}
