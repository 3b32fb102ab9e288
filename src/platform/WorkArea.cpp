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

QPoint CenteredPlace(const QRect& workArea, const QSize& window) {
  if (window.width() > workArea.width() || window.height() > workArea.height()) {
    return workArea.topLeft();
  }
  return {(workArea.width() - window.width()) / 2, (workArea.height() - window.height()) / 2};
}

void CenterInWorkArea(QWidget& window) {
  KeepInsideWorkArea(window);
  window.move(CenteredPlace(WorkArea(window), window.size()));
}

void PlaceOver(QWidget& window, const QWidget& other) {
  const QRect area = WorkArea(other);
  QRect place(QPoint(), window.size());
  place.moveCenter(other.frameGeometry().center());
  if (place.right() > area.right()) place.moveRight(area.right());
  if (place.bottom() > area.bottom()) place.moveBottom(area.bottom());
  window.move(qMax(place.left(), area.left()), qMax(place.top(), area.top()));
}

}  // namespace corvane
