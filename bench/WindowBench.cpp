#include <QtCore>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

#include "WindowBenchRuns.h"

// Times what a person waits for against the least that Qt needs for the same, each run in a process
// of its own. The two take turns, so that a busy machine slows both.

namespace {

using corvane::WindowRun;

constexpr int kRuns = 15;
constexpr int kLongestRun = 60000;

struct Comparison {
  const char* name;
  const WindowRun& program;
  const WindowRun& bare;
};

constexpr Comparison kComparisons[] = {
    {"first window", corvane::kFirstWindow, corvane::kBareWindow},
    {"Calculate to report shown", corvane::kCalculate, corvane::kBareWebView},
};

/// The milliseconds that a child process printed, or nothing when it failed.
std::optional<double> RunOnce(const WindowRun& run, const QString& home) {
  QProcess child;
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HOME", home);
  environment.insert("XDG_CONFIG_HOME", home);
  if (!environment.contains("DISPLAY")) environment.insert("QT_QPA_PLATFORM", "offscreen");
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  environment.insert(corvane::kStartedAt, QString::number(std::chrono::nanoseconds(now).count()));
  child.setProcessEnvironment(environment);
  child.setStandardErrorFile(QProcess::nullDevice());
  child.start(QCoreApplication::applicationFilePath(), {run.name});
  if (!child.waitForFinished(kLongestRun)) return std::nullopt;
  bool isNumber = false;
  const double milliseconds = child.readAllStandardOutput().trimmed().toDouble(&isNumber);
  return isNumber ? std::optional(milliseconds) : std::nullopt;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

bool Compare(const Comparison& comparison, const QString& home) {
  std::vector<double> program;
  std::vector<double> bare;
  for (int i = 0; i <= kRuns; ++i) {
    const auto ofProgram = RunOnce(comparison.program, home);
    const auto ofBare = RunOnce(comparison.bare, home);
    if (!ofProgram || !ofBare) {
      std::fprintf(stderr, "%s: a run failed\n", comparison.name);
      return false;
    }
    // The first pair brings the libraries into memory.
    if (i == 0) continue;
    program.push_back(*ofProgram);
    bare.push_back(*ofBare);
  }
  const double ratio = Median(program) / Median(bare);
  std::printf("%-28s %8.1f ms %8.1f ms %8.2f\n", comparison.name, Median(program), Median(bare),
              ratio);
  return true;
}

int CompareAll(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QTemporaryDir home;
  std::printf("%-28s %11s %11s %8s\n", "median of 15", "program", "bare", "ratio");
  bool succeeded = true;
  for (const Comparison& comparison : kComparisons) {
    succeeded = Compare(comparison, home.path()) && succeeded;
  }
  return succeeded ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  for (const Comparison& comparison : kComparisons) {
    for (const WindowRun* run : {&comparison.program, &comparison.bare}) {
      if (wanted == run->name) return run->run(argc, argv);
    }
  }
  return CompareAll(argc, argv);
}
