#pragma once

namespace corvane {

/// A work area or a window, in one unit of length.
struct Extent {
  int width = 0;
  int height = 0;
};

struct Position {
  int left = 0;
  int top = 0;
};

/// Where a window stands in the middle of the work area. The place is measured from the screen's
/// top left corner; a window that does not fit stands at the work area's own corner instead.
Position CenterPosition(const Extent& workArea, const Position& workAreaCorner,
                        const Extent& window);

}  // namespace corvane
