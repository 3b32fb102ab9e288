#include "windows/disclosure/DisclosureTest.h"
#include "windows/frame/CalendarPopup.h"
#include "windows/start/AboutWindow.h"

namespace corvane {
namespace {

class EntryWindow : public DisclosureTest {};

TEST_F(EntryWindow, EachNumericFieldFiltersItsKeysAndLimitsItsDecimals) {
  Continue("optRIMonths");
  const struct {
    const char *field, *typed, *kept, *message;
  } cases[] = {
      {"txtBal", "a12-3.4.5", "123.45", ""},
      {"txtBal", "10.005", "10.00", "Balance allows a maximum of 2"},
      {"txtIntRateA", "$5.12345", "5.1234", "Interest Rate allows a maximum of 4"},
      {"txtDiscAPY", "5.-125", "5.12", "APY allows a maximum of 2"},
      {"txtBeginMonth", "J1a-.", "1-.", ""},
      {"txtBeginYear", "2o2e4", "224", ""},
      {"txtTerm", "36 5,5", "3655", ""},
      {"txtWdrwlPeriods", "+12", "12", ""},
      {"txtBtwnReqIntWdrwl", "x1", "1", ""},
  };
  for (const auto& c : cases) {
    const std::string tail = " decimal places, Your entry has been truncated";
    if (*c.message) ExpectText(c.message + tail);
    Type(c.field, c.typed);
    EXPECT_EQ(Text(c.field), c.kept) << c.typed;
    EXPECT_EQ(Focus(), c.field);
  }
  Type("txtBal", "0.50");
  Key(Qt::Key_A, Qt::ControlModifier);
  Keys(".");
  EXPECT_EQ(Text("txtBal"), ".") << "the point replaces the selected text";
  Get<QLineEdit>("txtTerm")->setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(Focus(), "txtDailyRateFactor") << "Enter in the term moves on";
}

TEST_F(EntryWindow, WhateverActsFirstCommitsTheFieldInEntry) {
  Continue();
  const std::function<void()> ways[] = {
      [this] { Click("cmdCalculateResult"); },
      [this] { AccessKey(Qt::Key_C); },
      [this] {
        Get<QPushButton>("cmdCalculateResult")->setFocus();
        Key(Qt::Key_Return);
      },
  };
  double balance = 1000.5;
  for (const auto& act : ways) {
    const auto typed = QString::number(balance += 1);
    Enter("txtDiscAPY=5 txtBal=" + typed);
    EXPECT_EQ(Text("txtBal"), typed.toStdString()) << "still in entry";
    ExpectText("Please enter a valid Interest Rate value");
    act();
    AwaitBoxes();
    EXPECT_EQ(Text("txtBal"), typed.toStdString() + "0");
    EXPECT_EQ(Focus(), "txtIntRateA");
  }
  Enter("txtBal=7.5");
  WhenShown<AboutWindow>([this] { CloseByFrame(); });
  Menu("mnuHelp", "mnuHelpAbout");
  InFront<DisclosureEntryWindow>();
  EXPECT_EQ(Text("txtBal"), "7.50");
  ExpectText("Balance allows a maximum of 2 decimal places, Your entry has been truncated");
  Type("txtBal", ".125");
  EXPECT_EQ(Text("txtBal"), ".12") << "a message box is no leaving of the field";
}

TEST_F(EntryWindow, ATermOf0WithMonthsHoldsTheFocusButNobodyBack) {
  const std::function<void()> leaving[] = {
      [this] { Click("cmdBack"); },
      [this] { Click("cmdExit"); },
      [this] { Menu("mnuFile", "mnuNewAccount"); },
      [this] { Menu("mnuFile", "mnuMain"); },
  };
  const std::function<void()> staying[] = {
      [this] { Key(Qt::Key_Tab); },
      [this] { QTest::mouseClick(Get<QLineEdit>("txtBal"), Qt::LeftButton); },
      [this] { Click("cmdCalculateResult"); },
  };
  for (const auto& leave : leaving) {
    Continue("optICMonths");
    Type("txtTerm", "0");
    for (const auto& stay : staying) {
      ExpectText("For Interest Compounding Months or Years, please enter valid term");
      stay();
      EXPECT_EQ(Focus(), "txtTerm");
      EXPECT_FALSE(Get<QPushButton>("cmdCalculateResult")->isDown());
    }
    leave();
    EXPECT_FALSE(IsVisible<DisclosureEntryWindow>());
    if (IsVisible<MainMenu>()) Start();
    InFront<DisclosureSetupWindow>();
  }
}

TEST_F(EntryWindow, DatesCanBeEnteredExactlyWhileTheTermIsEmptyOr0) {
  for (const auto& [unit, hasDates] :
       {std::pair{"optICNone", true}, {"optICMonths", false}, {"optICDays", true}}) {
    Continue(unit);
    EXPECT_EQ(IsShown("frmTermDates"), hasDates);
    EXPECT_EQ(IsShown("frmDateRange"), !hasDates);
    for (const auto& [term, enabled] : {std::pair{"0", true}, {"90", false}, {"", true}}) {
      Type("txtTerm", term);
      EXPECT_EQ(IsEnabled("tStartDate") && IsEnabled("ImgCalendar(1)"), hasDates && enabled);
    }
    if (unit != std::string("optICDays")) GoTo<DisclosureSetupWindow>("cmdAcctInfo");
  }
  Enter("tStartDate=01-01-2024 tEndDate=03-01-2024 txtBal=1");
  EXPECT_EQ(Text("txtTerm"), "59") << "29 February left out";
  for (const auto& [date, term] : {std::pair{"tStartDate=", ""},
                                   {"tStartDate=01-02-2024", "58"},
                                   {"tEndDate=02-__", ""},
                                   {"tEndDate=03-02-2024", "59"}}) {
    Enter(date);
    EXPECT_EQ(Text("txtTerm"), term) << date;
  }
  Enter("txtTerm=30 txtBal=2");
  EXPECT_EQ(Text("tStartDate"), "__-__-____") << "the term was typed over them";
}

TEST_F(EntryWindow, TheCalendarPicksByKeysAndByMouse) {
  Continue("optICDays");
  const auto pick = [this](const char* image, std::function<void()> there) {
    WhenShown<CalendarPopup>(std::move(there));
    GoTo<DisclosureEntryWindow>(image);
  };
  pick("ImgCalendar(1)", [this] {
    EXPECT_EQ(Caption("lblMonth"), "March 2026") << "today's";
    Key(Qt::Key_Right);
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(Text("tEndDate"), "__-__-____") << "Escape alone picks nothing";
  ExpectText("Starting Date is invalid, Please correct");
  pick("ImgCalendar(1)", [this] {
    for (int key : {Qt::Key_Return, Qt::Key_Escape}) Key(key);
  });
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
  EXPECT_TRUE(IsEnabled("ImgCalendar(0)")) << "the dates can be corrected";
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded()) << "also right after a date was picked";
}

TEST_F(EntryWindow, BackKeepsWhatWasTypedUntilTheAccountIsAnother) {
  const auto backAndForth = [this](const QString& choices) {
    GoTo<DisclosureSetupWindow>("cmdBack");
    Continue(choices);
  };
  const QString entries =
      "txtBeginMonth=03 txtBeginYear=2023 txtDiscAPY=5.40 txtBal=1000.00 txtIntRateA=5.1234 "
      "txtTerm=365 txtDailyRateFactor=1/360 txtWdrwlPeriods=5 txtBtwnReqIntWdrwl=2";
  Continue("optRIMonths optLYYes");
  Enter(entries);
  GoTo<DisclosureSetupWindow>("cmdBack");
  EXPECT_TRUE(IsChosen("optICDays") && IsChosen("optRIMonths") && IsChosen("optLYYes"));
  Continue();
  EXPECT_EQ(Shown(entries), entries.toStdString());
  EXPECT_TRUE(session.disclosure.setup.year.countsLeapDay) << "the count must not change silently";
  const QString dates = "tStartDate=01-01-2024 tEndDate=03-01-2024";
  Enter("txtBal= txtIntRateA=- txtTerm=0 txtDiscAPY=0 " + dates + " txtTerm=0");
  backAndForth({});
  EXPECT_EQ(Shown("txtBal txtIntRateA txtTerm txtDiscAPY"),
            "txtBal= txtIntRateA=- txtTerm=0 txtDiscAPY=0.00");
  EXPECT_EQ(Shown(dates), dates.toStdString());
  Enter("tEndDate=02-__-____ txtDiscAPY=5.40");
  backAndForth("optDY366 optRINotReq");
  EXPECT_EQ(Shown("txtDiscAPY tEndDate"), "txtDiscAPY=5.40 tEndDate=02-__-____");
  backAndForth("optStepRate");
  EXPECT_EQ(Text("txtDiscAPY"), "");
  Enter("txtDiscAPY=5");
  GoTo<DisclosureSetupWindow>("cmdBack");
  Click("cmdNewAcct");
  Continue("optICDays optRIMonths");
  EXPECT_EQ(Shown("txtBeginMonth txtDiscAPY txtDailyRateFactor txtWdrwlPeriods"),
            "txtBeginMonth= txtDiscAPY= txtDailyRateFactor=1/365 txtWdrwlPeriods=");
}

}  // namespace
}  // namespace corvane
