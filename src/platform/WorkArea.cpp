#include "platform/WorkArea.h"

#include <QScreen>
#include <QWidget>

namespace corvane {

QRect WorkArea(const QWidget& window) {
  const QScreen* screen = window.screen();
  if (!screen) return {};
  return screen->availableGeometry().isEmpty() ? screen->geometry() : screen->availableGeometry();
}

void KeepInsideWorkArea(QWidget& window) {
  const QRect area = WorkArea(window);
  if (area.isEmpty()) return;
  window.resize(window.size().boundedTo(area.size()));
}

}  // namespace corvane
