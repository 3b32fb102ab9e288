#pragma once

#include <QIcon>
#include <QPixmap>

namespace corvane {

QIcon ProgramIcon();
/// The program's picture as the disclaimer shows it, 96 pixels wide at 96 dpi. It needs no scaling,
/// which the first window would wait for.
QPixmap ProgramPicture();
QIcon CalendarIcon();

}  // namespace corvane
