#pragma once

#include <QRect>

class QWidget;

namespace corvane {

/// The part of the window's screen that docked bars leave free; the whole screen where the desktop
/// does not tell.
QRect WorkArea(const QWidget& window);

/// Makes a window no larger than the work area.
void KeepInsideWorkArea(QWidget& window);

/// Puts a window that is about to show where another one stands, centre over centre, as far as the
/// work area lets it.
void PlaceOver(QWidget& window, const QWidget& other);

}  // namespace corvane
