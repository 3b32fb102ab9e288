#include "platform/Pictures.h"

// Outside the namespace, as the macro declares a global function.
static void LoadPictures() {
  Q_INIT_RESOURCE(icons);
}

namespace corvane {

namespace {

QIcon Picture(const char* path) {
  LoadPictures();
  return QIcon(path);
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon = Picture(":/icons/corvane.png");
  for (const char* size : {"16", "24", "32"}) {
    icon.addFile(QString(":/icons/corvane-") + size + ".png");
  }
  return icon;
}

QPixmap ProgramPicture() {
  LoadPictures();
  return QPixmap(":/icons/program.png");
}

QIcon CalendarIcon() {
  return Picture(":/icons/calendar.png");
}

}  // namespace corvane
