#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

namespace corvane {

/// The part of the window's screen that docked bars leave free; the whole screen where the desktop
/// does not tell.
QRect WorkArea(const QWidget& window);

/// Where a window stands in the middle of the work area. The place is measured from the screen's
/// top left corner; a window that does not fit stands at the work area's own corner instead.
QPoint CenteredPlace(const QRect& workArea, const QSize& window);

// What follows places a window that is about to show, with the frame that it will have: no larger
// than the work area, and inside it. Where the desktop places windows itself, only the size counts.

/// In the middle of its screen's work area.
void CenterInWorkArea(QWidget& window);
/// Centre over centre of a window that is shown.
void PlaceOver(QWidget& window, const QWidget& other);
/// Below a spot of the screen, from its left edge on, or above it where there is no room.
void PlaceBeside(QWidget& window, const QRect& spot);

}  // namespace corvane
