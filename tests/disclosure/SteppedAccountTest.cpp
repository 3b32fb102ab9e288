#include "disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class SteppedAccount : public DisclosureTest {
 protected:
  void SetUp() override {
    DisclosureTest::SetUp();
    Choose("optStepRate");
  }

  void NextPeriod() {
    Click("cmdNext");
    InFront<frmDisplayResultsweb>();
  }

  void Back() {
    Click("cmdBack");
    InFront<frmAcctRegularStepped>();
  }
};

TEST_F(SteppedAccount, ComputesTheRegulationsExamplePeriodByPeriod) {
  // Regulation DD, Appendix A: 5 % for 91 days, then 5.5 % for 92 days, $26.68 and 5.39.
  Continue();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Period No. 1");
  EXPECT_EQ(Focus(), "txtTierPerNum");
  Enter("txtTierPerNum=2 txtDiscAPY=5.39 txtBal=1000 txtIntRateA=5 txtTerm=91");
  NextPeriod();
  EXPECT_EQ(ReportRowCount(), 2) << "the period to come shows as an unfilled row";
  EXPECT_EQ(session.RptVerdict.At(1), session.ApyVerdict);
  Back();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Period No. 2");
  EXPECT_EQ(Text("txtIntRateA"), "");
  EXPECT_EQ(Text("txtBal"), "1000.00");
  for (const char* fixed : {"txtTierPerNum", "txtDiscAPY", "txtBal"}) {
    EXPECT_FALSE(IsEnabled(fixed)) << fixed;
  }
  Enter("txtIntRateA=5.5 txtTerm=92");
  Calculate();
  EXPECT_EQ(ReportRowCount(), 2);
  EXPECT_NEAR(session.ComputedInterest, 26.68, 0.005);
  EXPECT_EQ(session.ComputedApy, 5.39);
  EXPECT_EQ(Column(session.RptComputedApy), "N/A 5.39%");
  EXPECT_EQ(Column(session.RptVerdict), "N/A OK");
  EXPECT_EQ(Column(session.RptBalance), "$1,000.00 ");
  EXPECT_EQ(Column(session.RptTerm), "91.00 92.00");
}

TEST_F(SteppedAccount, BackCorrectsEveryPeriodAndLosesNothing) {
  Continue();
  Enter("txtTierPerNum=3 txtDiscAPY=5 txtBal=1000 txtIntRateA=4.1265 txtTerm=100");
  NextPeriod();
  Back();
  Enter("txtIntRateA=5 txtTerm=120");
  NextPeriod();
  Back();
  Enter("txtIntRateA=6 txtTerm=145");
  Calculate();
  const double interest = session.ComputedInterest;
  Back();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Period No. 3");
  EXPECT_EQ(Text("txtIntRateA"), "6.00");
  Back();
  Back();
  EXPECT_EQ(Text("txtIntRateA"), "4.1265");
  EXPECT_TRUE(IsEnabled("txtBal"));
  Type("txtBal", "2000");
  NextPeriod();
  Back();
  EXPECT_EQ(Text("txtIntRateA"), "5.00") << "a stored period shows again when it is reached";
  EXPECT_EQ(Text("txtBal"), "2000.00");
  NextPeriod();
  Back();
  Calculate();
  EXPECT_NEAR(session.ComputedInterest, 2 * interest, 0.01);
}

TEST_F(SteppedAccount, AnotherNumberOfPeriodsForgetsThePeriodsBehindTheFirst) {
  Continue();
  Enter("txtTierPerNum=3 txtDiscAPY=5 txtBal=1000 txtIntRateA=5 txtTerm=100");
  NextPeriod();
  Back();
  Enter("txtIntRateA=5 txtTerm=120");
  NextPeriod();
  Back();
  Back();
  Back();
  Type("txtTierPerNum", "2");
  NextPeriod();
  Back();
  EXPECT_EQ(Text("txtIntRateA"), "");
  EXPECT_TRUE(IsShown("cmdCalculateResult"));
}

TEST_F(SteppedAccount, TheNumberOfPeriodsIsRefusedOnLeavingItsField) {
  Continue();
  for (const char* number : {"1", "11", "0"}) {
    ExpectText("Please enter the period numbers from 2 to 10 only.");
    Type("txtTierPerNum", number);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text("txtTierPerNum"), "");
    EXPECT_EQ(Focus(), "txtTierPerNum");
  }
  Type("txtTierPerNum", "1-.0");
  EXPECT_EQ(Text("txtTierPerNum"), "10");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "txtDiscAPY");
}

TEST_F(SteppedAccount, MonthPeriodsBeginWhereTheLastOneEnded) {
  Choose("optICMonths");
  Type("txtDailyCompounding", "3");
  Continue();
  Enter(
      "txtTierPerNum=2 txtBeginMonth=11 txtBeginYear=2023 txtDiscAPY=5 txtBal=1000 txtIntRateA=5 "
      "txtTerm=2");
  NextPeriod();
  Back();
  EXPECT_EQ(Text("txtBeginMonth"), "05");
  EXPECT_EQ(Text("txtBeginYear"), "2024");
  EXPECT_TRUE(IsEnabled("txtBeginMonth"));
}

}  // namespace
}  // namespace corvane
