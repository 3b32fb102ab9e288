#include "DisclosureTest.h"
#include "platform/WebView.h"

namespace corvane {
namespace {

class RegularAccount : public DisclosureTest {};

TEST_F(RegularAccount, ComputesEveryUnitWithAndWithoutWithdrawals) {
  const QString thousandAt5 = "txtDiscAPY=5 txtBal=1000 txtIntRateA=5 ";
  const struct {
    const char* choices;
    QString entries;
    double interest, apy;
  } cases[] = {
      // Regulation DD, Appendix A, Part I.A: 61.68 on $1,000 in a year.
      {"optICNone", "txtDiscAPY=6.17 txtBal=1000 txtIntRateA=6.168 txtTerm=365", 61.68, 6.17},
      // Regulation DD, Appendix A, Part I.C: 5.25 % and 5.50 % compounded daily.
      {"optICDays", "txtDiscAPY=5.39 txtBal=1000 txtIntRateA=5.25 txtTerm=365", 53.90, 5.39},
      {"optICDays", "txtDiscAPY=5.65 txtBal=8000 txtIntRateA=5.50 txtTerm=365", 452.29, 5.65},
      // 365 days of 5/36500 without compounding, counted between dates past an uncounted leap day.
      {"optICNone", thousandAt5 + "tStartDate=01-01-2024 tEndDate=01-01-2025", 50.00, 5.00},
      // A withdrawal every day leaves nothing to compound.
      {"optICDays OptRIDays", thousandAt5 + "txtTerm=365 txtWdrwlPeriods=365 txtBtwnReqIntWdrwl=1",
       50.00, 5.00},
      // Each month's interest compounds daily and is then withdrawn: the sum of
      // 1000 ((1 + 0.05/365)^d - 1) over the months of 2023.
      {"optICDays optRIMonths",
       "txtBeginMonth=1 txtBeginYear=2023 " + thousandAt5 +
           "txtTerm=365 txtWdrwlPeriods=12 txtBtwnReqIntWdrwl=1",
       50.10, 5.01},
      // 12 periods of 30 days: 1000 ((1 + 0.05/365)^360 - 1), the APY raised to 365/360.
      {"optICDays optRINotReq txtDailyCompounding=30",
       thousandAt5 + "txtTerm=0 tStartDate=01-01-2023 tEndDate=12-27-2023", 50.55, 5.13},
      // Four quarters: 1000 (1.0125^4 - 1); 5.095 % goes to the even neighbour.
      {"optICMonths txtDailyCompounding=3",
       "txtBeginMonth=1 txtBeginYear=2023 " + thousandAt5 + "txtTerm=4", 50.95, 5.10},
      {"optICMonths txtDailyCompounding=1 optRIMonths",
       "txtBeginMonth=1 txtBeginYear=2023 " + thousandAt5 +
           "txtTerm=12 txtWdrwlPeriods=12 txtBtwnReqIntWdrwl=1",
       50.00, 5.00},
      // Two years: 1000 (1.05^2 - 1).
      {"optICYears", thousandAt5 + "txtTerm=2", 102.50, 5.00},
      // A year of 366 days: 1000 ((1 + 0.05/366)^366 - 1).
      {"optICDays optDY366", thousandAt5 + "txtTerm=366", 51.27, 5.13},
  };
  for (const auto& c : cases) {
    Continue(c.choices);
    Enter(c.entries);
    Calculate();
    const auto shown = c.choices + (" " + c.entries.toStdString());
    EXPECT_EQ(session.ComputedInterest, c.interest) << shown;
    EXPECT_EQ(session.ComputedApy, c.apy) << shown;
    Click("cmdAcct");
    InFront<frmAcctAdvertAPY>();
  }
}

TEST_F(RegularAccount, JudgesTheDisclosedFigureInColour) {
  Continue();
  Enter("txtDiscAPY=5.44 txtBal=1000 txtIntRateA=5.25 txtTerm=365");
  Calculate();
  EXPECT_EQ(session.PeriodCount, 1);
  EXPECT_NE(Report().find("<TD><Font Color=\"#000000\">OK</TD>"), std::string::npos);
  Click("cmdBack");
  InFront<frmAcctRegularStepped>();
  EXPECT_EQ(session.PeriodCount, 0);
  Enter("txtDiscAPY=5.45");
  Calculate();
  EXPECT_NE(Report().find("<TD><Font Color=\"#FF0000\">APY VIOLATION</TD>"), std::string::npos);
}

TEST_F(RegularAccount, TheReportStandsInTheBrowser) {
  Continue();
  Enter("txtDiscAPY=5.44 txtBal=1000 txtIntRateA=5.25 txtTerm=365");
  Click("cmdCalculateResult");
  auto& results = InFront<frmDisplayResultsweb>();
  QSignalSpy shown(results.findChild<WebView*>("WebView"), &WebView::Shown);
  ASSERT_TRUE(shown.wait(20000));
  EXPECT_TRUE(shown.front().front().toBool());
}

}  // namespace
}  // namespace corvane
