#include "statement/StatementWindows.h"

#include "platform/SaveDialog.h"
#include "support/frmCalendar.h"

namespace corvane {
namespace {

constexpr const char* kReport = "Periodic_Statement_Report.html";

struct WorkedExample {
  const char* source;
  const char* compoundingPeriod;  ///< of the additional formula, empty without it
  const char* average;
  const char* interest;
  const char* disclosed;
  double apy;
  const char* verdict;
};

constexpr WorkedExample kExamples[] = {
    {"Regulation DD, Appendix A, Part II.A: $5.25 on $1,000", "", "1000", "5.25", "6.58", 6.58,
     "OK"},
    {"the same, disclosed 0.06 lower", "", "1000", "5.25", "6.52", 6.58, "APY VIOLATION"},
    {"$12.50 on $10,000", "", "10000", "12.50", "1.53", 1.53, "OK"},
    {"Part II.B: $12.50 on $10,000 over 91 days", "91", "10000", "12.50", "1.53", 1.53, "OK"},
    {"Part II.B: 100 ((1 + 0.0125 / 30 x 91)^(365 / 91) - 1)", "91", "1000", "12.50", "16.10",
     16.10, "OK"},
};

TEST_F(StatementWindows, ComputesTheApyEarnedOfTypedFigures) {
  for (const WorkedExample& example : kExamples) {
    SCOPED_TRACE(example.source);
    Choose("optICNone");
    const bool additional = *example.compoundingPeriod != '\0';
    if (additional) {
      Choose("optFormulaYes");
      Type("txtDCPeriod", example.compoundingPeriod);
    }
    Continue();
    EXPECT_EQ(IsShown("lblAddAPY"), additional);
    EXPECT_EQ(IsEnabled("fraIntCalcMethod"), !additional);
    EnterTerms(example.disclosed, "5");
    Type("txtLedgerdays", "30");
    EnterBalance(example.average, example.interest);
    Calculate();
    EXPECT_EQ(session.ComputedApy, example.apy);
    EXPECT_EQ(session.ApyVerdict, example.verdict);
    EXPECT_TRUE(Holds(ReportText(kReport), std::string(">") + example.verdict + "<"));
    EXPECT_FALSE(IsEnabled("cmdDetail")) << "no days were typed";
    Click("cmdAcct");
    InFront<frmStatementUseandSelect>();
  }
}

TEST_F(StatementWindows, BackKeepsEverythingTypedOnTheWay) {
  Type("txtName", "First Bank");
  Type("txtAcctNum", "0815");
  ContinueWithoutCompounding();
  EXPECT_EQ(Caption("lblAccountInfo"), "Regular Account      Interest Compounding = None");
  EXPECT_EQ(Text("txtDRFactor"), "1/365");
  Type("txtDateStart", "01012024");
  Type("txtDateEnd", "01312024");
  EnterTerms("6.58", "6.3875");
  Type("txtLedgerdays", "0");
  EnterBalance("1000", "5.25");
  EXPECT_EQ(Text("txtLedgerdays"), "30") << "counted as the days field was left";
  Choose("optDailyBal");
  EXPECT_EQ(Caption("lblIntType"), "Interest Amount (Daily Balance Method)     :");
  Calculate();
  Click("cmdBack");
  InFront<frmCallStatement>();
  Click("cmdBack");
  InFront<frmStatementUseandSelect>();
  EXPECT_EQ(Text("txtName"), "First Bank");
  EXPECT_EQ(Text("txtAcctNum"), "0815");
  EXPECT_TRUE(Get<QRadioButton>("optICNone")->isChecked());
  Continue();
  const std::pair<const char*, const char*> kept[] = {
      {"txtDateStart", "01-01-2024"},
      {"txtDateEnd", "01-31-2024"},
      {"txtMinADB", "0.00"},
      {"txtDClApy", "6.58"},
      {"txtIntRate", "6.3875"},
      {"txtDRFactor", "1/365"},
      {"txtLedgerdays", "30"},
      {"txtIntAmt", "5.25"},
      {"txtADBLedgerBalance", "1000.00"},
  };
  for (const auto& [field, text] : kept) EXPECT_EQ(Text(field), text) << field;
  EXPECT_TRUE(Get<QRadioButton>("optDailyBal")->isChecked());
}

/// Each route out of an account, from the period or the results window.
struct WayOut {
  const char* button;
  bool fromResults;
  bool toMainMenu;
};

constexpr WayOut kWaysOut[] = {{"cmdNewAcct", false, false},
                               {"cmdAcct", true, false},
                               {"cmdExit", false, true},
                               {"cmdExit", true, true}};

TEST_F(StatementWindows, NothingOfAnAccountIsSeenInTheNext) {
  for (const WayOut& way : kWaysOut) {
    SCOPED_TRACE(std::string(way.button) + (way.fromResults ? " of the results" : ""));
    Type("txtName", "First Bank");
    Type("txtDepositorName", "A. Smith");
    Type("txtAcctNum", "0815");
    ContinueWithoutCompounding();
    EnterTerms("6.58", "6.3875");
    Type("txtLedgerdays", "2");
    Days("cmdComputeLADB", [this] {
      EXPECT_EQ(Text("txtDayBal(0)"), "") << "a day of the account before";
      TypeDays(2, "1000");
      Click("cmdContinue");
    });
    Type("txtDRFactor", "1/360");
    if (way.fromResults) Calculate();
    Click(way.button);
    if (way.toMainMenu) {
      InFront<frmMain>();
      EXPECT_EQ(session.InstitutionName, "");
      Click("cmdStatement");
    }
    InFront<frmStatementUseandSelect>();
    EXPECT_EQ(Text("txtName"), way.toMainMenu ? "" : "First Bank");
    EXPECT_EQ(Text("txtDepositorName") + Text("txtAcctNum"), "");
    EXPECT_EQ(session.LedgerDayBalances.Last(), 0);
    Continue();
    for (const char* field : {"txtMinADB", "txtDClApy", "txtIntRate", "txtLedgerdays",
                              "txtADBLedgerBalance", "txtIntAmt"}) {
      EXPECT_EQ(Text(field), "") << field;
    }
    EXPECT_EQ(Text("txtDRFactor"), "1/365");
    EXPECT_EQ(Get<QRadioButton>("optADB")->isChecked(), !way.toMainMenu);
    Click("cmdBack");
    InFront<frmStatementUseandSelect>();
    Click("cmdNewAcct");
  }
  EXPECT_EQ(Focus(), "txtName");
}

/// An entry of the setup that Continue refuses; the focus goes to the field, its text selected.
struct SetupRefusal {
  const char* compounding;
  const char* field;
  const char* text;
  const char* message;
};

constexpr SetupRefusal kSetupRefusals[] = {
    {"optICDays", "txtDCompounding", "", "Please enter valid number of days between compounding."},
    {"optICNone", "txtDCPeriod", "", "Please enter valid number of days in compounding period."},
    {"optICNone", "txtDCPeriod", "27", "Compounding Period must be greater than 27 days"},
    {"optICNone", "txtDCPeriod", "366", "Compounding Period must be no more that 365 days"},
};

TEST_F(StatementWindows, TheSetupRefusesAndShowsWhatACompoundingAsksFor) {
  for (const SetupRefusal& refusal : kSetupRefusals) {
    SCOPED_TRACE(refusal.message);
    Choose(refusal.compounding);
    const bool none = std::string(refusal.compounding) == "optICNone";
    for (const char* control :
         {"lblAPYFormula", "fraAPYFormula", "lblDCPeriod", "txtDCPeriod", "lblNoneOnly"}) {
      EXPECT_EQ(IsShown(control), none) << control;
    }
    EXPECT_EQ(Text("txtDCompounding"), none ? "" : "1");
    if (none) Choose("optFormulaYes");
    Type(refusal.field, refusal.text);
    ExpectText(refusal.message);
    Click("cmdNext");
    InFront<frmStatementUseandSelect>();
    EXPECT_EQ(Focus(), refusal.field);
    EXPECT_EQ(Get<QLineEdit>(refusal.field)->selectedText().toStdString(), refusal.text);
  }
  Choose("optFormulaNo");
  Choose("optDY366");
  Choose("opt229no");
  Expect({.text = "Count 2/29 will be changed to Yes, No is not allowed for 366 days.",
          .icon = MessageIcon::None});
  Continue();
  EXPECT_TRUE(session.CountLeapDay);
  EXPECT_EQ(Text("txtDRFactor"), "1/366");
}

/// What stands in a field of otherwise good entries, and what Calculate says to it.
struct EntryRefusal {
  const char* field;
  const char* text;
  const char* message;
};

constexpr EntryRefusal kEntryRefusals[] = {
    {"txtMinADB", "", "Please enter a valid Minimum ADB amount or Zero"},
    {"txtMinDBal", "-1", "Please enter a valid Minimum daily balance or Zero"},
    {"txtDClApy", "0", "Please enter a valid Disclosed APY percentage"},
    {"txtIntRate", "", "Please enter a valid Interest Rate"},
    {"txtDRFactor", "365", "Please enter a valid Daily Rate Factor"},
    {"txtLedgerdays", "97", "The valid Ledger Days range is 1 to 96, inclusive"},
    {"txtADBLedgerBalance", "0", "Please enter an ADB Ledger balance > 0 to continue"},
    {"txtIntAmt", "", "Please enter a valid interest for ADB Method"},
};

TEST_F(StatementWindows, ARefusalPutsTheFocusOnItsFieldAndLosesNothing) {
  ContinueWithoutCompounding();
  EnterTerms("1.53", "1.5");
  Type("txtLedgerdays", "30");
  EnterBalance("10000", "12.50");
  for (const EntryRefusal& refusal : kEntryRefusals) {
    SCOPED_TRACE(refusal.message);
    const QString before = QString::fromStdString(Text(refusal.field));
    Type(refusal.field, refusal.text);
    ExpectText(refusal.message);
    Click("cmdCalculate");
    InFront<frmCallStatement>();
    EXPECT_EQ(Focus(), refusal.field);
    EXPECT_FALSE(IsVisible<frmDisplayResultsStatement>());
    Type(refusal.field, before);
  }
  Calculate();
  EXPECT_EQ(session.ComputedApy, 1.53);
}

TEST_F(StatementWindows, LeavingTheDaysCountsThePeriodOnlyWhenThePersonStays) {
  ContinueWithoutCompounding();
  Type("txtLedgerdays", "0");
  Get<QLineEdit>("txtDateStart")->setFocus();
  Type("txtLedgerdays", "0");
  ExpectText("Starting Date Date is invalid, Please correct");
  Key(Qt::Key_Return);
  InFront<frmCallStatement>();
  EXPECT_EQ(Focus(), "txtDateStart");
  Type("txtDateStart", "01012024");
  Type("txtDateEnd", "04082024");
  Type("txtLedgerdays", "0");
  ExpectText("Number of days may not exceed 96, Please adjust");
  Get<QPushButton>("cmdCalculate")->click();  // as its access key does
  InFront<frmCallStatement>();
  EXPECT_EQ(Text("txtDateStart") + Text("txtDateEnd"), "__-__-______-__-____");
  Type("txtLedgerdays", "0");
  Click("cmdBack");
  InFront<frmStatementUseandSelect>();
}

TEST_F(StatementWindows, TheCalendarAsksForBothDatesAndFillsTheDays) {
  ContinueWithoutCompounding();
  const auto pick = [this](std::initializer_list<int> keys, const std::function<void()>& next) {
    InFront<frmCalendar>();
    if (next) QTimer::singleShot(0, next);
    for (int key : keys) Key(key);
  };
  ClickInto<frmCalendar>("ImgCalendar", [this] { Key(Qt::Key_Escape); });
  InFront<frmCallStatement>();
  EXPECT_EQ(Text("txtDateStart"), "__-__-____") << "a cancelled pick asks for nothing more";
  QTimer::singleShot(0, [&] {
    pick({Qt::Key_PageUp, Qt::Key_Return, Qt::Key_Escape}, [&] {
      pick({Qt::Key_Return, Qt::Key_Escape}, {});
    });
  });
  Click("ImgCalendar");
  InFront<frmCallStatement>();
  EXPECT_EQ(Text("txtDateStart"), "02-15-2026");
  EXPECT_EQ(Text("txtDateEnd"), "03-15-2026") << "today";
  EXPECT_EQ(Text("txtLedgerdays"), "28");
  EXPECT_FALSE(windows.HasEnded());
}

TEST_F(StatementWindows, MinimumsChooseTheMethodOrAreSpokenOf) {
  const std::string notice =
      "Values entered for Minimum ADB and Minimum Daily Balance \n"
      "        are not valid for the selected Statement Type and \n"
      "                            Interest Calculation Method";
  ContinueWithoutCompounding();
  EnterTerms("1.53", "1.5", "optDailyBal");
  Type("txtLedgerdays", "30");
  EnterBalance("10000", "12.50");
  Type("txtMinADB", "100");
  Calculate();
  EXPECT_EQ(session.BalanceMethodCode, 1);
  Click("cmdBack");
  InFront<frmCallStatement>();
  EXPECT_TRUE(Get<QRadioButton>("optADB")->isChecked()) << "the screen agrees with the report";
  Type("txtMinADB", "0");
  Type("txtMinDBal", "50");
  ExpectText(notice);
  Click("cmdCalculate");
  InFront<frmCallStatement>();
  EXPECT_EQ(Focus(), "txtMinADB");
  Type("txtMinADB", "100");
  ExpectText(notice);
  Calculate();
}

TEST_F(StatementWindows, TheReportIsSavedAndTheFrameEndsTheProgram) {
  ContinueWithoutCompounding();
  EnterTerms("6.58", "5");
  Type("txtLedgerdays", "30");
  EnterBalance("1000", "5.25");
  Calculate();
  const QTemporaryDir folder;
  SetSaveAnswer([&folder](const SaveQuestion& question) {
    EXPECT_EQ(question.title.toStdString(), "Save Statement APY Summary");
    EXPECT_EQ(question.fileName.toStdString(), "Statement_APY_Summary.htm");
    return folder.filePath("kept");
  });
  Menu("mnuFile", "mnuSave");
  QFile saved(folder.filePath("kept.html"));
  ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
  EXPECT_TRUE(saved.readAll().contains("6.58%"));
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded());
}

}  // namespace
}  // namespace corvane
