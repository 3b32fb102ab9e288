#include "platform/CenterPosition.h"

namespace corvane {

Position CenterPosition(const Extent& workArea, const Position& workAreaCorner,
                        const Extent& window) {
  if (window.width > workArea.width || window.height > workArea.height) return workAreaCorner;
  return {(workArea.width - window.width) / 2, (workArea.height - window.height) / 2};
}

}  // namespace corvane
