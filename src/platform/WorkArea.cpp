#include "platform/WorkArea.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace corvane {

namespace {

/// What the desktop puts around a window. Nobody knows before it has shown one: then there is room
/// for two title bars, of which the style knows one.
QSize FrameAround(const QWidget& window) {
  if (window.isVisible()) return window.frameGeometry().size() - window.size();
  const int bar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
  return {bar / 2, 2 * bar};
}

QPoint PlaceInside(const QRect& area, QRect place) {
  if (place.right() > area.right()) place.moveRight(area.right());
  if (place.bottom() > area.bottom()) place.moveBottom(area.bottom());
  return {qMax(place.left(), area.left()), qMax(place.top(), area.top())};
}

QSize Fit(QWidget& window, const QSize& area, const QSize& frame) {
  window.resize(window.size().boundedTo(area - frame));
  return window.size() + frame;
}

}  // namespace

QRect WorkArea(const QWidget& window) {
  const QScreen* screen = window.screen();
  if (!screen) return {};
  return screen->availableGeometry().isEmpty() ? screen->geometry() : screen->availableGeometry();
}

QPoint CenteredPlace(const QRect& workArea, const QSize& window) {
  if (window.width() > workArea.width() || window.height() > workArea.height()) {
    return workArea.topLeft();
  }
  return {(workArea.width() - window.width()) / 2, (workArea.height() - window.height()) / 2};
}

void CenterInWorkArea(QWidget& window) {
  const QRect area = WorkArea(window);
  const QSize framed = Fit(window, area.size(), FrameAround(window));
  window.move(PlaceInside(area, {CenteredPlace(area, framed), framed}));
}

void PlaceOver(QWidget& window, const QWidget& other) {
  const QRect area = WorkArea(other);
  QRect place({}, Fit(window, area.size(), FrameAround(other)));
  place.moveCenter(other.frameGeometry().center());
  window.move(PlaceInside(area, place));
}

void PlaceBeside(QWidget& window, const QRect& spot) {
  constexpr int kGap = 2;
  const QRect area = WorkArea(window);
  QRect place(spot.bottomLeft() + QPoint(0, kGap), Fit(window, area.size(), FrameAround(window)));
  if (place.bottom() > area.bottom()) place.moveBottom(spot.top() - kGap);
  window.move(PlaceInside(area, place));
}

}  // namespace corvane
