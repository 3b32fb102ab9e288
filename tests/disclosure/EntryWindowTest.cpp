#include "DisclosureTest.h"
#include "shell/frmAbout.h"
#include "support/frmCalendar.h"

namespace corvane {
namespace {

class EntryWindow : public DisclosureTest {};

TEST_F(EntryWindow, EachNumericFieldFiltersItsKeysAndLimitsItsDecimals) {
  Continue("optRIMonths");
  const struct {
    const char *field, *typed, *kept, *label;
    int decimals = 0;
  } cases[] = {
      {"txtBal", "a1.2.3", "1.23", nullptr},
      {"txtBal", "12-3", "123", nullptr},
      {"txtBal", "-1,2", "-12", nullptr},
      {"txtBal", "10.005", "10.00", "Balance ", 2},
      {"txtIntRateA", "5.12345", "5.1234", "Interest Rate ", 4},
      {"txtIntRateA", "$5%", "5", nullptr},
      {"txtDiscAPY", "5.-125", "5.12", "APY ", 2},
      {"txtBeginMonth", "J1a-.", "1-.", nullptr},
      {"txtBeginYear", "2o2e4", "224", nullptr},
      {"txtTerm", "36 5,5", "3655", nullptr},
      {"txtWdrwlPeriods", "+12", "12", nullptr},
      {"txtBtwnReqIntWdrwl", "x1", "1", nullptr},
  };
  for (const auto& c : cases) {
    if (c.label) {
      ExpectText(c.label + ("allows a maximum of " + std::to_string(c.decimals)) +
                 " decimal places, Your entry has been truncated");
    }
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
    EXPECT_NE(session.Balance, balance) << "still in entry";
    ExpectText("Please enter a valid Interest Rate value");
    act();
    AwaitBoxes();
    EXPECT_EQ(session.Balance, balance);
    EXPECT_EQ(Text("txtBal"), typed.toStdString() + "0");
    EXPECT_EQ(Focus(), "txtIntRateA");
  }
  Enter("txtBal=7.5");
  WhenShown<frmAbout>([this] { CloseByFrame(); });
  Menu("mnuHelp", "mnuHelpAbout");
  InFront<frmAcctRegularStepped>();
  EXPECT_EQ(Text("txtBal"), "7.50");
  ExpectText("Balance allows a maximum of 2 decimal places, Your entry has been truncated");
  Type("txtBal", ".125");
  EXPECT_EQ(Text("txtBal"), ".12") << "a message box is no leaving of the field";
  EXPECT_EQ(session.Balance, 7.5);
}

TEST_F(EntryWindow, ATermOf0WithMonthsHoldsTheFocusButNobodyBack) {
  const char* refusal = "For Interest Compounding Months or Years, please enter valid term";
  const std::function<void()> leaving[] = {
      [this] { Click("cmdBack"); },           [this] { Click("cmdAcctInfo"); },
      [this] { Click("cmdExit"); },           [this] { Menu("mnuFile", "mnuNewAccount"); },
      [this] { Menu("mnuFile", "mnuMain"); },
  };
  for (const auto& leave : leaving) {
    Continue("optICMonths");
    Type("txtTerm", "0");
    for (const char* way : {"Tab", "txtBal", "cmdCalculateResult"}) {
      ExpectText(refusal);
      if (way[0] == 'T') Key(Qt::Key_Tab);
      if (way[0] == 't') QTest::mouseClick(Get<QLineEdit>(way), Qt::LeftButton);
      if (way[0] == 'c') Click(way);
      EXPECT_EQ(Focus(), "txtTerm") << way;
      EXPECT_FALSE(Get<QPushButton>("cmdCalculateResult")->isDown()) << way;
    }
    leave();
    EXPECT_FALSE(IsVisible<frmAcctRegularStepped>());
    if (IsVisible<frmMain>()) Start();
    InFront<frmAcctAdvertAPY>();
  }
}

TEST_F(EntryWindow, DatesCanBeEnteredExactlyWhileTheTermIsEmptyOr0) {
  for (const auto& [unit, hasDates] :
       {std::pair{"optICNone", true}, {"optICDays", true}, {"optICMonths", false}}) {
    Continue(unit);
    EXPECT_EQ(IsShown("frmTermDates"), hasDates);
    EXPECT_EQ(IsShown("frmDateRange"), !hasDates);
    for (const auto& [term, enabled] : {std::pair{"0", true}, {"90", false}, {"", true}}) {
      Type("txtTerm", term);
      EXPECT_EQ(IsEnabled("tStartDate") && IsEnabled("ImgCalendar(1)"), hasDates && enabled);
    }
    Click("cmdAcctInfo");
    InFront<frmAcctAdvertAPY>();
  }
  Continue("optICDays");
  Enter("tStartDate=01-01-2024 tEndDate=03-01-2024");
  Type("txtBal", "1");
  EXPECT_EQ(Text("txtTerm"), "59") << "counted on leaving the dates, 29 February left out";
  EXPECT_EQ(Text("tStartDate"), "01-01-2024");
  Enter("txtTerm=30 txtBal=2");
  EXPECT_EQ(Text("tStartDate"), "__-__-____") << "the term was typed over them";
}

TEST_F(EntryWindow, TheCalendarPicksByKeysAndByMouse) {
  Continue("optICDays");
  const auto pick = [this](const char* image, std::function<void()> there) {
    WhenShown<frmCalendar>(std::move(there));
    Click(image);
    InFront<frmAcctRegularStepped>();
  };
  ExpectText("Starting Date is invalid, Please correct");
  pick("ImgCalendar(1)", [this] {
    EXPECT_EQ(Caption("lblMonth"), "March 2026") << "today's";
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(Focus(), "tStartDate");
  Type("tStartDate", "01-31-2024");
  pick("ImgCalendar(0)", [this] {
    Key(Qt::Key_PageDown);
    EXPECT_EQ(Caption("lblMonth"), "February 2024");
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(Text("tStartDate"), "01-31-2024") << "Escape alone picks nothing";
  pick("ImgCalendar(0)", [this] {
    for (int key : {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left,
                    Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_Return}) {
      Key(key);
    }
    EXPECT_TRUE(IsVisible<frmCalendar>()) << "Enter keeps it open";
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(Text("tStartDate"), "12-29-2023") << "31 January, 29 February, 29 December";
  pick("ImgCalendar(1)", [this] {
    auto* next = Get<QLabel>("lblNext");
    for (int pair = 0; pair < 2; ++pair) {
      QTest::mouseClick(next, Qt::LeftButton);
      QTest::mouseDClick(next, Qt::LeftButton);
    }
    QTest::mouseClick(Get<QLabel>("LabelPrevYear"), Qt::LeftButton);
    QTest::mouseClick(Get<QLabel>("lblPrev"), Qt::LeftButton);
    QTest::mouseClick(Get<QLabel>("LabelNextYear"), Qt::LeftButton);
    EXPECT_EQ(Caption("lblMonth"), "June 2026") << "four presses on, one back";
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

TEST_F(EntryWindow, BackKeepsWhatWasTypedUntilTheAccountIsNew) {
  const QString entries =
      "txtBeginMonth=03 txtBeginYear=2023 txtDiscAPY=5.40 txtBal=1000.00 txtIntRateA=5.1234 "
      "txtTerm=365 txtDailyRateFactor=1/360 txtWdrwlPeriods=5 txtBtwnReqIntWdrwl=2";
  Continue("optRIMonths optLYYes");
  Enter(entries);
  Click("cmdBack");
  InFront<frmAcctAdvertAPY>();
  EXPECT_TRUE(IsChosen("optICDays") && IsChosen("optRIMonths") && IsChosen("optLYYes"));
  Continue();
  EXPECT_EQ(Shown(entries), entries);
  EXPECT_TRUE(session.CountLeapDay) << "the count must not change silently";
  Enter("txtBal= txtIntRateA=- txtTerm=0 tStartDate=01-01-2024 tEndDate=02-__-____");
  Click("cmdBack");
  InFront<frmAcctAdvertAPY>();
  Continue();
  EXPECT_EQ(Shown("txtBal txtIntRateA txtTerm tStartDate tEndDate").toStdString(),
            "txtBal= txtIntRateA= txtTerm= tStartDate=01-01-2024 tEndDate=__-__-____");
  Click("cmdBack");
  InFront<frmAcctAdvertAPY>();
  Continue("optDY366 optRINotReq");
  EXPECT_EQ(Text("txtDiscAPY"), "5.40");
  Click("cmdBack");
  InFront<frmAcctAdvertAPY>();
  Click("cmdNewAcct");
  Continue("optICDays optRIMonths");
  EXPECT_EQ(
      Shown("txtBeginMonth txtDiscAPY txtBal txtDailyRateFactor txtWdrwlPeriods").toStdString(),
      "txtBeginMonth= txtDiscAPY= txtBal= txtDailyRateFactor=1/365 txtWdrwlPeriods=");
}

}  // namespace
}  // namespace corvane
