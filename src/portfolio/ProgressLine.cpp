#include "portfolio/ProgressLine.h"

#include <cstdio>

#include "support/NumberText.h"

namespace corvane {

void ProgressLine::Show(std::size_t rows, std::size_t bytesRead) {
  const auto now = Clock::now();
  if (!isShown_ || now - last_ < std::chrono::milliseconds(200)) return;
  last_ = now;
  const double seconds = std::chrono::duration<double>(now - begin_).count();
  const double perSecond = static_cast<double>(rows) / seconds;
  std::string line = CountText(rows, "row") + ", " + FormatGroupedWhole(perSecond) + " a second";
  if (bytes_ > bytesRead && bytesRead > 0) {
    const double left =
        seconds * static_cast<double>(bytes_ - bytesRead) / static_cast<double>(bytesRead);
    line += ", " + FormatWhole(left) + " s left";
  }
  std::fprintf(stderr, "\r%s\x1b[K", line.c_str());
}

void ProgressLine::End() {
  if (isShown_ && last_ != begin_) std::fputs("\r\x1b[K", stderr);
}

}  // namespace corvane
