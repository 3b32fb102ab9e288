#pragma once

#include <span>

namespace corvane {

/// One thing that a child process does and times: it starts an application, calls Finish and ends.
struct TimedRun {
  const char* name;
  int (*run)(int argc, char** argv);
};

/// A run of the program and the least that Qt needs for the same.
struct Comparison {
  const char* name;
  TimedRun program, bare;
};

/// The steady clock's time, in milliseconds, which counts alike in all processes; and that at which
/// this child process was started.
double Now();
double StartOfProcess();

/// Prints what a run took since then, with the processor's time and the most memory of its whole
/// process until now, and ends the application.
void Finish(double since);

/// The main function of a program that times what a person waits for: each run in a process of its
/// own, the two of a comparison by turns, so that a busy machine slows both. Named as the first
/// argument, a single run is done and nothing compared.
int TakeTurns(std::span<const Comparison> comparisons, int argc, char** argv);

}  // namespace corvane
