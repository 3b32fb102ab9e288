#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

namespace corvane {

/// The part of the window's screen that docked bars leave free; the whole screen where the desktop
/// does not tell.
QRect WorkArea(const QWidget& window);

/// Makes a window no larger than the work area.
void KeepInsideWorkArea(QWidget& window);

/// Where a window stands in the middle of the work area. The place is measured from the screen's
/// top left corner; a window that does not fit stands at the work area's own corner instead.
QPoint CenteredPlace(const QRect& workArea, const QSize& window);

/// Moves the window to the middle of its screen's work area; where the desktop places windows
/// itself, nothing happens.
void CenterInWorkArea(QWidget& window);

/// Puts a window that is about to show where another one stands, centre over centre, as far as the
/// work area lets it.
void PlaceOver(QWidget& window, const QWidget& other);

}  // namespace corvane
