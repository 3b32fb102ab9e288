#include "platform/WorkArea.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(WorkArea, CentersFromTheScreensCornerUnlessTheWindowDoesNotFit) {
  const QRect area(40, 30, 1000, 700);
  const struct {
    QSize window;
    QPoint place;
  } cases[] = {{{520, 440}, {240, 130}},
               {{1000, 700}, {0, 0}},
               {{1001, 400}, {40, 30}},
               {{600, 701}, {40, 30}}};
  for (const auto& c : cases) EXPECT_EQ(CenteredPlace(area, c.window), c.place);
}

TEST(WorkArea, AWindowStandsBelowOrAboveTheButtonThatItBelongsTo) {
  QWidget window;
  window.resize(200, 200);
  const QRect area = WorkArea(window);
  for (const QPoint& corner :
       {area.topLeft(), area.center(), area.bottomRight() - QPoint(99, 99)}) {
    const QRect button(corner, QSize(30, 20));
    PlaceBeside(window, button);
    const QRect place(window.pos(), window.size());
    EXPECT_TRUE(area.contains(place)) << corner.y();
    EXPECT_FALSE(place.intersects(button)) << corner.y();
  }
}

}  // namespace
}  // namespace corvane
