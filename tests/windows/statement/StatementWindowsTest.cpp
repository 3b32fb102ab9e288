#include "windows/statement/StatementTest.h"

#include "platform/SaveDialog.h"
#include "windows/frame/CalendarPopup.h"

namespace corvane {
namespace {

TEST_F(StatementWindows, ComputesTheApyEarnedOfTypedFigures) {
  struct Example {
    const char *compoundingPeriod, *disclosed, *verdict;
    double apy;
  };
  // $5.25 on $1,000 in 30 days: Regulation DD, Appendix A, Part II.A; with the formula of Part II.B
  // 100 x ((1 + 0.00525 / 30 x 91) ^ (365 / 91) - 1) = 6.5423
  for (const Example& example : {Example{"", "6.58", "OK", 6.58},
                                 {"", "6.52", "APY VIOLATION", 6.58},
                                 {"91", "6.54", "OK", 6.54}}) {
    SCOPED_TRACE(std::string(example.disclosed) + " " + example.compoundingPeriod);
    Choose("optICNone");
    if (*example.compoundingPeriod) {
      Choose("optFormulaYes");
      Type("txtDCPeriod", example.compoundingPeriod);
    }
    Click("cmdNext");
    InFront<StatementEntryWindow>();
    EnterTerms(example.disclosed, "5", "30");
    Type("txtADBLedgerBalance", "1000");
    Type("txtIntAmt", "5.25");
    Calculate();
    EXPECT_EQ(session.statement.result->apy, example.apy);
    EXPECT_GE(CountInReport("Periodic_Statement_Report.html", example.verdict), 1);
    Click("cmdAcct");
    InFront<StatementSetupWindow>();
  }
}

TEST_F(StatementWindows, SavingAndBackKeepEverythingTyped) {
  Type("txtName", "First Bank");
  Type("txtAcctNum", "0815");
  ContinueUncompounded();
  Type("txtDateStart", "01012024");
  Type("txtDateEnd", "01312024");
  EnterTerms("6.58", "6.3875", "0");
  Type("txtADBLedgerBalance", "1000");
  Type("txtIntAmt", "5.25");
  EXPECT_EQ(Text("txtLedgerdays"), "30") << "counted as the days field was left";
  Choose("optDailyBal");
  Calculate();
  const QTemporaryDir folder;
  SetSaveAnswer([&folder](const SaveQuestion& question) {
    EXPECT_EQ(question.fileName.toStdString(), "Statement_APY_Summary.htm");
    return folder.filePath("kept");
  });
  Menu("mnuFile", "mnuSave");
  EXPECT_TRUE(QFile::exists(folder.filePath("kept.html")));
  Click("cmdBack");
  InFront<StatementEntryWindow>();
  Click("cmdBack");
  InFront<StatementSetupWindow>();
  EXPECT_EQ(Text("txtName") + Text("txtAcctNum"), "First Bank0815");
  ContinueUncompounded();
  std::string kept;
  for (const char* field : {"txtDateStart", "txtDateEnd", "txtMinADB", "txtDClApy", "txtIntRate",
                            "txtLedgerdays", "txtADBLedgerBalance", "txtIntAmt"}) {
    kept += Text(field) + " ";
  }
  EXPECT_EQ(kept, "01-01-2024 01-31-2024 0.00 6.58 6.3875 30 1000.00 5.25 ");
  EXPECT_TRUE(Get<QRadioButton>("optDailyBal")->isChecked());
}

TEST_F(StatementWindows, NothingOfAnAccountIsSeenInTheNext) {
  const std::pair<const char*, bool> waysOut[] = {
      {"cmdNewAcct", false}, {"cmdAcct", true}, {"cmdExit", false}, {"cmdExit", true}};
  for (const auto& [button, fromResults] : waysOut) {
    SCOPED_TRACE(std::string(button) + (fromResults ? " of the results" : ""));
    const bool toMainMenu = std::string(button) == "cmdExit";
    for (const char* field : {"txtName", "txtDepositorName", "txtAcctNum"}) Type(field, "First");
    ContinueUncompounded();
    EnterTerms("6.58", "6.3875", "2");
    Type("txtDRFactor", "1/360");
    ComputeDays("cmdComputeLADB", 2, "1000");
    if (fromResults) Calculate();
    Click(button);
    if (toMainMenu) {
      InFront<MainMenu>();
      Click("cmdStatement");
    }
    InFront<StatementSetupWindow>();
    EXPECT_EQ(Text("txtName"), toMainMenu ? "" : "First");
    EXPECT_EQ(Text("txtDepositorName") + Text("txtAcctNum"), "");
    ContinueUncompounded();
    for (const char* field : {"txtMinADB", "txtDClApy", "txtIntRate", "txtLedgerdays",
                              "txtADBLedgerBalance", "txtIntAmt"}) {
      EXPECT_EQ(Text(field), "") << field;
    }
    EXPECT_EQ(Text("txtDRFactor"), "1/365");
    EXPECT_EQ(Get<QRadioButton>("optADB")->isChecked(), !toMainMenu);
    Click("cmdBack");
    InFront<StatementSetupWindow>();
    Click("cmdNewAcct");
  }
  EXPECT_EQ(Focus(), "txtName");
}

TEST_F(StatementWindows, TheSetupRefusesAndShowsWhatACompoundingAsksFor) {
  EXPECT_EQ(Text("txtDCompounding"), "1");
  EXPECT_FALSE(IsShown("fraAPYFormula"));
  Choose("optICNone");
  Choose("optFormulaYes");
  Type("txtDCPeriod", "27");
  ExpectText("Compounding Period must be greater than 27 days");
  Click("cmdNext");
  InFront<StatementSetupWindow>();
  EXPECT_EQ(Focus(), "txtDCPeriod");
  Choose("optFormulaNo");
  Choose("optDY366");
  Choose("opt229no");
  Expect({.text = "Count 2/29 will be changed to Yes, No is not allowed for 366 days.",
          .icon = MessageIcon::None});
  ContinueUncompounded();
  EXPECT_EQ(Text("txtDRFactor"), "1/366");
}

TEST_F(StatementWindows, ARefusalPutsTheFocusOnItsFieldAndLosesNothing) {
  ContinueUncompounded();
  EnterTerms("1.53", "1.5", "30");
  Type("txtADBLedgerBalance", "10000");
  Type("txtIntAmt", "12.50");
  Type("txtLedgerdays", "97");
  CalculateRefused("The valid Ledger Days range is 1 to 96, inclusive", "txtLedgerdays");
  Type("txtLedgerdays", "30");
  Type("txtMinDBal", "50");
  Type("txtMinADB", "100");
  ExpectText(
      "Values entered for Minimum ADB and Minimum Daily Balance \n"
      "        are not valid for the selected Statement Type and \n"
      "                            Interest Calculation Method");
  Calculate();
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded());
}

TEST_F(StatementWindows, LeavingTheDaysCountsThePeriodOnlyWhenThePersonStays) {
  ContinueUncompounded();
  Type("txtLedgerdays", "0");
  Type("txtDateStart", "01012024");
  Type("txtLedgerdays", "0");
  ExpectText("Ending Date Date is invalid, Please correct");
  Key(Qt::Key_Return);
  InFront<StatementEntryWindow>();
  EXPECT_EQ(Focus(), "txtDateEnd");
  Type("txtDateEnd", "04082024");
  Type("txtLedgerdays", "0");
  ExpectText("Number of days may not exceed 96, Please adjust");
  Get<QPushButton>("cmdCalculate")->click();  // as its access key does
  InFront<StatementEntryWindow>();
  EXPECT_EQ(Text("txtDateStart") + Text("txtDateEnd"), "__-__-______-__-____");
  Type("txtLedgerdays", "0");
  Click("cmdBack");
  InFront<StatementSetupWindow>();
}

TEST_F(StatementWindows, TheCalendarAsksForBothDatesAndFillsTheDays) {
  ContinueUncompounded();
  ClickInto<CalendarPopup>("ImgCalendar", [this] { Key(Qt::Key_Escape); });
  InFront<StatementEntryWindow>();
  EXPECT_EQ(Text("txtDateStart"), "__-__-____") << "a cancelled pick asks for nothing more";
  QTimer::singleShot(0, [this] {
    InFront<CalendarPopup>();
    QTimer::singleShot(0, [this] {
      InFront<CalendarPopup>();
      for (int key : {Qt::Key_Return, Qt::Key_Escape}) Key(key);
    });
    for (int key : {Qt::Key_PageUp, Qt::Key_Return, Qt::Key_Escape}) Key(key);
  });
  Click("ImgCalendar");
  InFront<StatementEntryWindow>();
  EXPECT_EQ(Text("txtDateStart") + " " + Text("txtDateEnd"), "02-15-2026 03-15-2026");
  EXPECT_EQ(Text("txtLedgerdays"), "28");
  for (const auto& [typed, days] : {std::pair{"03012026", "14"}, {"", ""}, {"03162026", "29"}}) {
    Type("txtDateEnd", typed);
    EXPECT_EQ(Text("txtLedgerdays"), days) << "the days follow the dates";
  }
  EnterTerms("5", "5", "2");
  Type("txtADBLedgerBalance", "1000");
  Type("txtIntAmt", "5");
  Expect({.text = "The dates count 29 days; the entry is 2.", .icon = MessageIcon::None});
  Calculate();
}

}  // namespace
}  // namespace corvane
