#include "support/ProgramTitle.h"
#include "windows/statement/StatementTest.h"

namespace corvane {
namespace {

class DailyBalancesEntry : public StatementWindows {
 protected:
  void ExpectClosing(QMessageBox::StandardButton answer) {
    Expect({"Any data you have entered will be lost. Are you sure you want to close this window?",
            kProgramTitle, MessageIcon::None, answer});
  }
  void ExpectQuestion(const std::string& emptyOfAll, QMessageBox::StandardButton answer) {
    Expect({emptyOfAll + " days have no balance and count as 0. Compute the average all the same?",
            kProgramTitle, MessageIcon::None, answer});
  }
};

constexpr const char* kDays = "Interest_Report.html";

TEST_F(DailyBalancesEntry, TheWholeWayFromTypedDaysToTheInterestReport) {
  // Regulation DD, Appendix A, Part II: 15 days at $1,500 and 15 at $500 average $1,000; $5.25 on
  // it in 30 days are 6.58 %. 6.3875 % a year pay just that: 0.063875 / 365 x 30,000.
  ContinueUncompounded();
  EnterTerms("6.58", "6.3875", "30");
  Days("cmdComputeLADB", [this] {
    EXPECT_EQ(Caption("lblDay(0)"), "Mar 15");
    TypeDays(15, "1500");
    TypeDays(15, "500");
    EXPECT_EQ(Text("txtDayBal(29)") + " " + Text("txtRate(29)"), "500.00 6.3875");
    Click("cmdContinue");
  });
  EXPECT_EQ(Text("txtADBLedgerBalance") + " " + Text("txtIntAmt"), "1000.00 5.25");
  Calculate();
  EXPECT_EQ(session.statement.result->apy, 6.58);
  ASSERT_TRUE(IsEnabled("cmdDetail"));
  ClickInto<InterestReportWindow>("cmdDetail", [this] { Click("cmdExit"); });
  EXPECT_EQ(CountInReport(kDays, "$1,500.00"), 15);
  InFront<StatementResultsWindow>();
  Click("cmdBack");
  InFront<StatementEntryWindow>();
  Calculate();
  EXPECT_FALSE(IsEnabled("cmdDetail")) << "the detail ended with Back";
  Click("cmdBack");
  InFront<StatementEntryWindow>();
  EXPECT_FALSE(IsShown("lblIntNote"));
  Type("txtIntRate", "6");
  EXPECT_EQ(Caption("lblIntNote"), "terms changed: compute or enter again");
  EXPECT_TRUE(IsShown("lblIntNote"));
  CalculateRefused("Please enter a valid interest for ADB Method", "txtIntAmt");
  Type("txtIntAmt", "5.25");
  Choose("optDailyBal");
  EXPECT_EQ(Text("txtIntAmt"), "5.25") << "typed interest stays";
  EXPECT_FALSE(IsShown("lblIntNote"));
}

TEST_F(DailyBalancesEntry, TheInterestReportOf31DaysHas11Rows) {
  ContinueUncompounded();
  Type("txtDateStart", "01012024");
  Type("txtDateEnd", "02012024");
  EnterTerms("6.58", "5", "0");
  Days("cmdComputeLADB", [this] {
    Keys("1234.5");
    Type("txtDayBal(30)", "-99");
    Type("txtDayBal(1)", "-");
    for (const char* leaving : {"cmdPrint", "cmdContinue"}) {
      ExpectText("Please enter a valid balance for Jan 2.");
      Click(leaving);
      EXPECT_EQ(Focus(), "txtDayBal(1)");
    }
    Keys("0");
    ClickInto<InterestReportWindow>("cmdPrint", [this] { CloseByFrame(); });
    InFront<DailyBalancesWindow>();
    ExpectQuestion("28 of 31", QMessageBox::No);
    Click("cmdContinue");
    ExpectQuestion("28 of 31", QMessageBox::Yes);
    Click("cmdContinue");
  });
  EXPECT_EQ(CountInReport(kDays, "<TR align=center>"), 11);
  for (const char* cell : {">Jan 1<", ">$1,234.50<", ">Jan 31<", ">-$99.00<"}) {
    EXPECT_EQ(CountInReport(kDays, cell), 1) << cell;
  }
}

TEST_F(DailyBalancesEntry, ThirtyThreeDaysStandOnAPage) {
  struct Pages {
    const char* days;
    int pages, lastRow;
    const char* lastDay;
  };
  ContinueUncompounded();
  EnterTerms("6.58", "5", "1");
  for (const Pages& row :
       {Pages{"33", 1, 32, "Apr 16"}, {"34", 2, 0, "Apr 17"}, {"96", 3, 29, "Jun 18"}}) {
    SCOPED_TRACE(row.days);
    Type("txtLedgerdays", row.days);
    Days("cmdComputeLADB", [this, &row] {
      Keys("100");
      ShowLastPage();
      const QString last = QString::number(row.lastRow);
      EXPECT_EQ(Caption("lblDay(" + last + ")"), row.lastDay);
      Type("txtDayBal(" + last + ")", "700");
      for (int page = row.pages; page > 1; --page) Click("cmdPrevious");
      EXPECT_EQ(Text("txtDayBal(0)"), "100.00");
      ExpectQuestion(std::to_string(std::stoi(row.days) - 2) + " of " + row.days, QMessageBox::Yes);
      Click("cmdContinue");
    });
    EXPECT_NEAR(std::stod(Text("txtADBLedgerBalance")), 800 / std::stod(row.days), 0.005);
    Days("cmdComputeLADB", [this, &row] {
      EXPECT_EQ(Text("txtDayBal(0)"), "100.00") << "handed back";
      ShowLastPage();
      Keys("1000");
      Click("cmdClear");
      EXPECT_EQ(Text("txtDayBal(0)") + Text("txtRate(0)"), "");
      ExpectQuestion(std::string(row.days) + " of " + row.days, QMessageBox::Yes);
      Click("cmdContinue");
    });
    EXPECT_EQ(Text("txtADBLedgerBalance"), "0.00") << "cleared on page " << row.pages;
  }
}

TEST_F(DailyBalancesEntry, TheFrameCancelsAndOnlyThat) {
  ContinueUncompounded();
  EnterTerms("6.58", "5", "2");
  Type("txtADBLedgerBalance", "777");
  Type("txtIntAmt", "3.21");
  Days("cmdComputeLADB", [this] {
    TypeDays(2, "1000");
    ExpectClosing(QMessageBox::No);
    CloseByFrame();
    EXPECT_EQ(Text("txtDayBal(1)"), "1000.00");
    ExpectClosing(QMessageBox::Yes);
    CloseByFrame();
  });
  EXPECT_EQ(Text("txtADBLedgerBalance") + " " + Text("txtIntAmt"), "777.00 3.21");
}

/// A balance basis: the choices that make it, which columns take an entry, and what comes of ten
/// ledger days at 1,000 and ten collected days at 800 that pay 0.1 % a day.
struct Basis {
  const char *ledgerEqualsCollected, *ledgerAdb;
  bool ledger, collected;
  const char* interest;
  double apy;
};

// 100 x ((1 + interest / average) ^ (365 / 10) - 1)
constexpr Basis kBases[] = {
    {"optLColl_Yes", "", true, false, "10.00", 43.79},
    {"optLColl_No", "", true, true, "8.00", 33.75},
    {"optLColl_No", "optLADBNo", false, true, "8.00", 43.79},
};

TEST_F(DailyBalancesEntry, EachBasisTakesItsColumns) {
  ContinueUncompounded();
  for (const Basis& basis : kBases) {
    SCOPED_TRACE(std::string(basis.ledgerEqualsCollected) + " " + basis.ledgerAdb);
    Choose(basis.ledgerEqualsCollected);
    if (*basis.ledgerAdb) Choose(basis.ledgerAdb);
    EXPECT_EQ(IsEnabled("txtColDays"), !basis.ledger);
    EnterTerms("43.79", "36.5", "10", "optDailyBal");
    if (basis.collected) ComputeDays("cmdComputeCADB", 10, "800");
    if (basis.ledger) ComputeDays("cmdComputeLADB", 10, "1000");
    EXPECT_EQ(Text("txtIntAmt"), basis.interest);
    Calculate();
    EXPECT_EQ(session.statement.result->apy, basis.apy);
    EXPECT_TRUE(IsEnabled("cmdDetail"));
    Click("cmdBack");
    InFront<StatementEntryWindow>();
  }
}

TEST_F(DailyBalancesEntry, ASteppedAccountsRatesAreTypedByDay) {
  Choose("optStepRate");
  ContinueUncompounded();
  EnterTerms("6.58", "", "2");
  Days("cmdComputeLADB", [this] {
    Keys("1000");
    Key(Qt::Key_Tab);
    ExpectText("Interest Rate allows a maximum of 4 decimal places, Your entry has been truncated");
    Keys("3.65004");
    InFront<DailyBalancesWindow>();
    Type("txtDayBal(0)", "2000");
    Type("txtDayBal(1)", "1000");
    EXPECT_EQ(Text("txtRate(0)"), "3.65") << "kept when its balance is typed anew";
    Key(Qt::Key_Tab);
    Keys("7.3");
    Click("cmdContinue");
  });
  EXPECT_EQ(Text("txtIntAmt"), "0.40") << "2,000 x 0.0001 + 1,000 x 0.0002";
}

TEST_F(DailyBalancesEntry, DailyCompoundingReachesTheInterest) {
  // 36.5 % a year is 0.1 % a day: 2,000,000 x (1.001 ^ 15 - 1) x 1.001 ^ 15; on the average of
  // 1,000,000 it were 30,439.09 and without compounding 30,000.
  Click("cmdNext");
  InFront<StatementEntryWindow>();
  EnterTerms("44.02", "36.5", "30", "optDailyBal");
  Days("cmdComputeLADB", [this] {
    TypeDays(15, "2000000");
    TypeDays(15, "0");
    Click("cmdContinue");
  });
  EXPECT_EQ(Text("txtIntAmt"), "30667.26");
}

}  // namespace
}  // namespace corvane
