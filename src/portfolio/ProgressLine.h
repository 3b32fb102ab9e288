#pragma once

#include <chrono>
#include <cstddef>

namespace corvane {

/// A line on the terminal: rows, rows a second, time left. It is written anew a few times a second.
class ProgressLine {
 public:
  /// @param bytes of all files, 0 where that is not known
  ProgressLine(bool isShown, std::size_t bytes) : isShown_(isShown), bytes_(bytes) {}

  void Show(std::size_t rows, std::size_t bytesRead);
  /// Takes the line away.
  void End();

 private:
  using Clock = std::chrono::steady_clock;

  bool isShown_;
  std::size_t bytes_;
  Clock::time_point begin_ = Clock::now();
  Clock::time_point last_ = begin_;
};

}  // namespace corvane
