#pragma once

namespace corvane {

/// One thing that a child process of the window benchmark does and times: it starts an application,
/// prints the milliseconds and ends.
struct WindowRun {
  const char* name;
  int (*run)(int argc, char** argv);
};

/// The environment variable that holds when the child was started, in nanoseconds of the steady
/// clock, which counts alike in all processes.
inline constexpr const char* kStartedAt = "CORVANE_BENCH_STARTED_AT";

extern const WindowRun kFirstWindow;  ///< process start until the disclaimer is painted
extern const WindowRun kBareWindow;   ///< process start until an empty window is painted
extern const WindowRun kCalculate;    ///< Calculate pressed until the report is shown
extern const WindowRun kBareWebView;  ///< web view made until it shows that report

}  // namespace corvane
