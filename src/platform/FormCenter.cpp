#include "platform/FormCenter.h"

#include <QWidget>

#include "platform/CenterPosition.h"
#include "platform/WorkArea.h"

namespace corvane {

void clsFormCenter::CenterForm(QWidget& window) const {
  KeepInsideWorkArea(window);
  const QRect area = WorkArea(window);
  const Position place = CenterPosition({area.width(), area.height()}, {area.left(), area.top()},
                                        {window.width(), window.height()});
  window.move(place.left, place.top);
}

}  // namespace corvane
