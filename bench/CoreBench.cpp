#include <benchmark/benchmark.h>

#include "BenchCases.h"

/// Times every row of BenchCases.
int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  for (const corvane::BenchCase& row : corvane::BenchCases()) {
    benchmark::RegisterBenchmark(row.name.c_str(), [prepare = row.prepare](benchmark::State& runs) {
      const std::function<void()> act = prepare();
      for (auto _ : runs) act();
    });
  }
  benchmark::RunSpecifiedBenchmarks();
}
