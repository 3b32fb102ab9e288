#include "Turns.h"

#include <QtCore>

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string_view>
#include <vector>

namespace corvane {

namespace {

constexpr int kRuns = 15;
constexpr int kLongestRun = 60000;
constexpr const char* kStartedAt = "CORVANE_BENCH_STARTED_AT";

/// In the order in which a run prints them.
constexpr std::array kUnits = {"ms", "ms of processor time", "MiB"};
using Figures = std::array<double, kUnits.size()>;

/// The most memory that this process has held, in MiB.
double MostMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

std::optional<Figures> FiguresIn(const QByteArray& line) {
  const QList<QByteArray> texts = line.trimmed().split(' ');
  Figures figures{};
  if (texts.size() != static_cast<qsizetype>(figures.size())) return std::nullopt;
  for (size_t i = 0; i < figures.size(); ++i) {
    figures[i] = texts[static_cast<qsizetype>(i)].toDouble();
  }
  return figures;
}

/// What a child process printed, or nothing when it failed.
std::optional<Figures> RunOnce(const TimedRun& run, const QString& home) {
  QProcess child;
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HOME", home);
  environment.insert("XDG_CONFIG_HOME", home);
  if (!environment.contains("DISPLAY")) environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert(kStartedAt, QString::number(Now(), 'f'));
  child.setProcessEnvironment(environment);
  child.setStandardErrorFile(QProcess::nullDevice());
  child.start(QCoreApplication::applicationFilePath(), {run.name});
  if (!child.waitForFinished(kLongestRun)) return std::nullopt;
  return FiguresIn(child.readAllStandardOutput());
}

double Median(const std::vector<Figures>& runs, size_t figure) {
  std::vector<double> values;
  for (const Figures& run : runs) values.push_back(run[figure]);
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

bool Compare(const Comparison& comparison, const QString& home) {
  std::vector<Figures> program, bare;
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
  for (size_t i = 0; i < kUnits.size(); ++i) {
    const double mine = Median(program, i);
    const double least = Median(bare, i);
    std::printf("%-24s %8.1f %8.1f %8.2f  %s\n", i == 0 ? comparison.name : "", mine, least,
                mine / least, kUnits[i]);
  }
  return true;
}

}  // namespace

double Now() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

double StartOfProcess() {
  return qEnvironmentVariable(kStartedAt).toDouble();
}

void Finish(double since) {
  const double processor = 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
  std::printf("%.2f %.2f %.2f\n", Now() - since, processor, MostMemory());
  std::fflush(stdout);
  QCoreApplication::quit();
}

int TakeTurns(std::span<const Comparison> comparisons, int argc, char** argv) {
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  for (const Comparison& comparison : comparisons) {
    for (const TimedRun* run : {&comparison.program, &comparison.bare}) {
      if (wanted == run->name) return run->run(argc, argv);
    }
  }
  const QCoreApplication application(argc, argv);
  const QTemporaryDir home;
  std::printf("%-24s %8s %8s %8s\n", "medians", "program", "bare", "ratio");
  bool succeeded = true;
  for (const Comparison& comparison : comparisons) {
    succeeded = Compare(comparison, home.path()) && succeeded;
  }
  return succeeded ? 0 : 1;
}

}  // namespace corvane
