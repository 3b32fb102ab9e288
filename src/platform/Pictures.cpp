#include "platform/Pictures.h"

#include <QPainter>

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
  constexpr const char* kFile = ":/icons/calendar.png";
  constexpr qreal kFaint = 0.35;
  QIcon icon = Picture(kFile);
  // A style makes light greys of it, which shine in a dark window.
  const QPixmap plain(kFile);
  QPixmap faint(plain.size());
  faint.fill(Qt::transparent);
  QPainter painter(&faint);
  painter.setOpacity(kFaint);
  painter.drawPixmap(0, 0, plain);
  painter.end();
  icon.addPixmap(faint, QIcon::Disabled);
  return icon;
}

}  // namespace corvane
