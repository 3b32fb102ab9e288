#include "windows/disclosure/DisclosureTest.h"
#include "windows/frame/CalendarPopup.h"

namespace corvane {
namespace {

class EntryWindow : public DisclosureTest {};

TEST_F(EntryWindow, TheCalendarPicksByMouse) {
  Continue("optICDays");
  Enter("tStartDate=12-29-2023");
  WhenShown<CalendarPopup>([this] {
    for (const char* label :
         {"lblNext", "lblNext", "lblNext", "LabelPrevYear", "lblPrev", "LabelNextYear"}) {
      QTest::mouseClick(Get<QLabel>(label), Qt::LeftButton);
    }
    QTest::mouseDClick(Get<QLabel>("lblNext"), Qt::LeftButton);
    EXPECT_EQ(Caption("lblMonth"), "June 2026") << "from March: four presses on, one back";
    auto* month = Get<QWidget>("picMonth");
    const QPoint cell(month->width() / 7, month->height() / 6);
    QTest::mouseClick(month, Qt::LeftButton, {}, cell / 2);  // an empty cell: 1 June is a Monday
    EXPECT_EQ(month->accessibleName().toStdString(), "06-15-2026");
    const QPoint monday(cell.x() * 3 / 2, cell.y() / 2);
    QTest::mouseClick(month, Qt::LeftButton, {}, monday);
    QTest::mouseDClick(month, Qt::LeftButton, {}, monday);
  });
  GoTo<DisclosureEntryWindow>("ImgCalendar(1)");
  EXPECT_EQ(Text("tEndDate"), "06-01-2026");
  EXPECT_EQ(Text("txtTerm"), "884") << "885 days from 29 December 2023, less 29 February 2024";
  EXPECT_TRUE(IsEnabled("ImgCalendar(0)")) << "the dates can be corrected";
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded()) << "also right after a date was picked";
}

}  // namespace
}  // namespace corvane
