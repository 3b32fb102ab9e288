#pragma once

#include <QIcon>

namespace corvane {

QIcon ProgramIcon();
QIcon CalendarIcon();

}  // namespace corvane
