#pragma once

#include <QRect>

class QWidget;

namespace corvane {

/// The part of the window's screen that docked bars leave free; the whole screen where the desktop
/// does not tell.
QRect WorkArea(const QWidget& window);

/// Before a window shows: makes it no larger than the work area.
void KeepInsideWorkArea(QWidget& window);

}  // namespace corvane
