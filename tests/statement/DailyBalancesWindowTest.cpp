#include "platform/SaveDialog.h"
#include "shell/ProgramTitle.h"
#include "statement/StatementWindows.h"

namespace corvane {
namespace {

constexpr const char* kClosing =
    "Any data you have entered will be lost. Are you sure you want to close this window?";

using DailyBalancesWindow = StatementWindows;

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST_F(DailyBalancesWindow, TheWholeWayFromTypedDaysToTheInterestReport) {
  // Regulation DD, Appendix A, Part II: 15 days at $1,500 and 15 at $500 average $1,000; $5.25 on
  // it in 30 days are 6.58 %. 6.3875 % a year pay just that: 0.063875 / 365 x 30,000.
  ContinueWithoutCompounding();
  EnterTerms("6.58", "6.3875");
  Type("txtLedgerdays", "30");
  Days("cmdComputeLADB", [this] {
    EXPECT_EQ(Caption("lblMinADB"), "Minimum Required ADB = 0");
    EXPECT_EQ(Caption("lblDay(0)"), "Mar 15");
    EXPECT_FALSE(IsShown("txtDayBal(30)"));
    EXPECT_FALSE(IsEnabled("txtRate(0)"));
    EXPECT_FALSE(IsEnabled("cmdNext"));
    TypeDays(15, "1500");
    TypeDays(15, "500");
    EXPECT_EQ(Text("txtDayBal(29)") + " " + Text("txtRate(29)"), "500.00 6.3875");
    Click("cmdContinue");
  });
  EXPECT_EQ(Text("txtADBLedgerBalance"), "1000.00");
  EXPECT_EQ(Text("txtIntAmt"), "5.25");
  Calculate();
  EXPECT_EQ(session.ComputedApy, 6.58);
  EXPECT_EQ(session.ApyVerdict, "OK");
  ASSERT_TRUE(IsEnabled("cmdDetail"));
  ClickInto<frmInterestReport>("cmdDetail", [this] { Click("cmdExit"); });
  EXPECT_EQ(CountOf(ReportText("Interest_Report.html"), "$1,500.00"), 15);
  InFront<frmDisplayResultsStatement>();
  Click("cmdBack");
  InFront<frmCallStatement>();
  Calculate();
  EXPECT_FALSE(IsEnabled("cmdDetail")) << "the detail ended with Back";
}

TEST_F(DailyBalancesWindow, TheInterestReportOf31DaysHas11Rows) {
  ContinueWithoutCompounding();
  Type("txtDateStart", "01012024");
  Type("txtDateEnd", "02012024");
  EnterTerms("6.58", "5");
  Type("txtLedgerdays", "0");
  Days("cmdComputeLADB", [this] {
    EXPECT_EQ(Caption("lblDay(30)"), "Jan 31");
    Keys("1234.5");
    Type("txtDayBal(30)", "-99");
    ClickInto<frmInterestReport>("cmdPrint", [this] {
      const QTemporaryDir folder;
      SetSaveAnswer([&folder](const SaveQuestion& question) {
        EXPECT_EQ(question.fileName.toStdString(), "Interest_Report.html");
        return folder.filePath("days.htm");
      });
      Menu("mnuFile", "mnuSave");
      EXPECT_TRUE(QFile::exists(folder.filePath("days.htm")));
      CloseByFrame();
    });
    EXPECT_FALSE(windows.HasEnded());
    InFront<frmInterestbyDay>();
    EXPECT_EQ(Text("txtDayBal(0)"), "1234.50");
    Click("cmdContinue");
  });
  const std::string report = ReportText("Interest_Report.html");
  EXPECT_EQ(CountOf(report, "<TR align=center>"), 11);
  for (const char* cell :
       {">Jan 1<", ">$1,234.50<", ">Jan 12<", ">Jan 22<", ">Jan 31<", ">-$99.00<"}) {
    EXPECT_TRUE(Holds(report, cell)) << cell;
  }
}

/// Days of a period, and what the last page shows.
struct Pages {
  const char* days;
  int pages;
  int lastRow;
  const char* lastDay;
};

constexpr Pages kPages[] = {{"33", 1, 32, "Apr 16"},
                            {"34", 2, 0, "Apr 17"},
                            {"66", 2, 32, "May 19"},
                            {"96", 3, 29, "Jun 18"}};

TEST_F(DailyBalancesWindow, ThirtyThreeDaysStandOnAPage) {
  ContinueWithoutCompounding();
  EnterTerms("6.58", "5");
  Type("txtLedgerdays", "1");
  for (const Pages& row : kPages) {
    SCOPED_TRACE(row.days);
    Type("txtLedgerdays", row.days);
    Days("cmdComputeLADB", [this, &row] {
      Keys("100");
      for (int page = 1; page < row.pages; ++page) Click("cmdNext");
      EXPECT_FALSE(IsEnabled("cmdNext"));
      const QString last = QString::number(row.lastRow);
      EXPECT_EQ(Caption("lblDay(" + last + ")"), row.lastDay);
      const QString beyond = QString("lblDay(%1)").arg((row.lastRow + 1) % 33);
      EXPECT_EQ(IsShown(beyond), row.lastRow == 32)
          << "row 0 stands in for the one beyond a full page";
      Type("txtDayBal(" + last + ")", "700");
      for (int page = row.pages; page > 1; --page) Click("cmdPrevious");
      EXPECT_FALSE(IsEnabled("cmdPrevious"));
      EXPECT_EQ(Text("txtDayBal(0)"), "100.00");
      Click("cmdContinue");
    });
    const double average = 800 / std::stod(row.days);
    EXPECT_NEAR(std::stod(Text("txtADBLedgerBalance")), average, 0.005);
    EXPECT_EQ(session.LedgerDayBalances.At(std::stoi(row.days)), 700);
  }
}

TEST_F(DailyBalancesWindow, TheFrameCancelsAndOnlyThat) {
  ContinueWithoutCompounding();
  EnterTerms("6.58", "5");
  Type("txtLedgerdays", "2");
  EnterBalance("777", "3.21");
  Days("cmdComputeLADB", [this] {
    TypeDays(2, "1000");
    Expect({.text = kClosing,
            .title = kProgramTitle,
            .icon = MessageIcon::None,
            .answer = QMessageBox::No});
    CloseByFrame();
    EXPECT_EQ(Text("txtDayBal(1)"), "1000.00");
    Expect({.text = kClosing,
            .title = kProgramTitle,
            .icon = MessageIcon::None,
            .answer = QMessageBox::Yes});
    CloseByFrame();
  });
  EXPECT_EQ(Text("txtADBLedgerBalance"), "777.00");
  EXPECT_EQ(Text("txtIntAmt"), "3.21");
  EXPECT_EQ(session.StatementDays, 0);
  EXPECT_FALSE(windows.HasEnded());
  Days("cmdComputeLADB", [this] {
    EXPECT_EQ(Text("txtDayBal(0)"), "") << "lost, as the box said";
    TypeDays(2, "1000");
    Click("cmdContinue");
  });
  Days("cmdComputeLADB", [this] {
    EXPECT_EQ(Text("txtDayBal(0)"), "1000.00");
    Click("cmdClear");
    EXPECT_EQ(Text("txtDayBal(0)") + Text("txtRate(0)"), "");
    Click("cmdContinue");
  });
  EXPECT_EQ(Text("txtADBLedgerBalance"), "0.00");
}

/// A balance basis: the choices that make it, which columns take an entry, and what comes of ten
/// ledger days at 1,000 and ten collected days at 800 that pay 0.1 % a day.
struct Basis {
  const char* ledgerEqualsCollected;
  const char* ledgerAdb;
  int code;
  bool ledger;
  bool collectedDays;
  bool collectedAdb;
  const char* interest;
  double apy;
};

// 100 x ((1 + interest / average) ^ (365 / 10) - 1)
constexpr Basis kBases[] = {
    {"optLColl_Yes", "", 1, true, false, false, "10.00", 43.79},
    {"optLColl_No", "", 2, true, false, true, "8.00", 33.75},
    {"optLColl_No", "optLADBNo", 3, false, true, true, "8.00", 43.79},
};

TEST_F(DailyBalancesWindow, EachBasisTakesItsColumns) {
  ContinueWithoutCompounding();
  for (const Basis& basis : kBases) {
    SCOPED_TRACE(basis.code);
    Choose(basis.ledgerEqualsCollected);
    if (*basis.ledgerAdb) Choose(basis.ledgerAdb);
    for (const char* control : {"txtLedgerdays", "txtADBLedgerBalance", "cmdComputeLADB"}) {
      EXPECT_EQ(IsEnabled(control), basis.ledger) << control;
    }
    EXPECT_EQ(IsEnabled("txtColDays"), basis.collectedDays);
    EXPECT_EQ(IsEnabled("txtADBCollectedBalance"), basis.collectedAdb);
    EXPECT_EQ(IsEnabled("cmdComputeCADB"), basis.collectedAdb);
    EnterTerms("43.79", "36.5", "optDailyBal");
    Type(basis.ledger ? "txtLedgerdays" : "txtColDays", "10");
    const auto fill = [this](const char* balance) {
      return [this, balance] {
        TypeDays(10, balance);
        Click("cmdContinue");
      };
    };
    if (basis.collectedAdb) Days("cmdComputeCADB", fill("800"));
    if (basis.ledger) Days("cmdComputeLADB", fill("1000"));
    EXPECT_EQ(Text("txtIntAmt"), basis.interest);
    Calculate();
    EXPECT_EQ(session.BalanceBasisCode, basis.code);
    EXPECT_EQ(session.ComputedApy, basis.apy);
    EXPECT_TRUE(IsEnabled("cmdDetail"));
    Click("cmdBack");
    InFront<frmCallStatement>();
  }
}

TEST_F(DailyBalancesWindow, ASteppedAccountsRatesAreTypedByDay) {
  Choose("optStepRate");
  ContinueWithoutCompounding();
  EXPECT_EQ(Caption("lblAccountInfo"), "Variable Rate Account      Interest Compounding = None");
  EXPECT_FALSE(IsEnabled("txtIntRate"));
  EXPECT_TRUE(Get<QRadioButton>("optDailyBal")->isChecked());
  EnterTerms("6.58", "");
  Type("txtLedgerdays", "2");
  Days("cmdComputeLADB", [this] {
    Keys("1000");
    Key(Qt::Key_Tab);
    ExpectText("Interest Rate allows a maximum of 4 decimal places, Your entry has been truncated");
    Keys("3.65004");
    InFront<frmInterestbyDay>();
    EXPECT_EQ(Text("txtRate(0)"), "3.6500");
    Type("txtDayBal(0)", "2000");
    Type("txtDayBal(1)", "1000");
    EXPECT_EQ(Text("txtRate(0)"), "3.65") << "kept when its balance is typed anew";
    Key(Qt::Key_Tab);
    Keys("7.3");
    Click("cmdContinue");
  });
  // 2,000 x 0.0001 + 1,000 x 0.0002
  EXPECT_EQ(Text("txtIntAmt"), "0.40");
  EXPECT_EQ(Text("txtADBLedgerBalance"), "1500.00");
}

}  // namespace
}  // namespace corvane
