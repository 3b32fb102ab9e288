#include "windows/disclosure/DisclosureTest.h"
#include "windows/frame/CalendarPopup.h"

namespace corvane {
namespace {

class EntryWindow : public DisclosureTest {};

TEST_F(EntryWindow, TheCalendarPicksByKeysAndByMouse) {
  Continue("optICDays");
  const auto pick = [this](const char* image, std::function<void()> there) {
    WhenShown<CalendarPopup>(std::move(there));
    GoTo<DisclosureEntryWindow>(image);
  };
  ExpectText("Starting Date is invalid, Please correct");
  pick("ImgCalendar(1)", [this] {
    EXPECT_EQ(Caption("lblMonth"), "March 2026") << "today's";
    Key(Qt::Key_Right);
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(Text("tEndDate"), "__-__-____") << "Escape alone picks nothing";
  EXPECT_EQ(Focus(), "tStartDate");
  Type("tStartDate", "01-31-2024");
  pick("ImgCalendar(0)", [this] {
    for (int key : {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left,
                    Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_Return}) {
      Key(key);
    }
    EXPECT_TRUE(IsVisible<CalendarPopup>()) << "Enter keeps it open";
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(Text("tStartDate"), "12-29-2023") << "31 January, 29 February, 29 December";
  pick("ImgCalendar(1)", [this] {
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
  EXPECT_EQ(Text("tEndDate"), "06-01-2026");
  EXPECT_EQ(Text("txtTerm"), "884") << "885 days from 29 December 2023, less 29 February 2024";
  EXPECT_FALSE(IsEnabled("ImgCalendar(0)"));
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded()) << "also right after a date was picked";
}

}  // namespace
}  // namespace corvane
