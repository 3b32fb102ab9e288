#pragma once

#include <functional>
#include <string>
#include <vector>

namespace corvane {

/// One thing to be timed: `prepare` gives the act that is repeated.
struct BenchCase {
  std::string name;
  std::function<std::function<void()>()> prepare;
};

/// All computations and report builds that are timed; a new one is a further row.
std::vector<BenchCase> BenchCases();

}  // namespace corvane
