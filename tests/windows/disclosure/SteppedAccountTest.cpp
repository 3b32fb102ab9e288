#include "windows/disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class SteppedAccount : public DisclosureTest {
 protected:
  void SetUp() override {
    DisclosureTest::SetUp();
    Choose("optStepRate");
  }

  /// Completes the period and comes back from its results to the next one.
  void Complete(const QString& entries = {}) {
    Enter(entries);
    GoTo<DisclosureResultsWindow>("cmdNext");
    Back();
  }

  void Back() { GoTo<DisclosureEntryWindow>("cmdBack"); }
};

TEST_F(SteppedAccount, ComputesTheRegulationsExamplePeriodByPeriod) {
  // Regulation DD, Appendix A: 5 % for 91 days, then 5.5 % for 92 days, $26.68 and 5.39.
  Continue();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Period No. 1");
  EXPECT_EQ(Focus(), "txtTierPerNum");
  Complete("txtTierPerNum=2 txtDiscAPY=5.39 txtBal=1000 txtIntRateA=5 txtTerm=91");
  EXPECT_EQ(ReportRowCount(), 2) << "the period to come shows as an unfilled row";
  EXPECT_EQ(Column(ReportCell::Verdict), "APY VIOLATION ");
  EXPECT_EQ(Caption("lblPeriodNumber"), "Period No. 2");
  EXPECT_EQ(Shown("txtIntRateA txtBal"), "txtIntRateA= txtBal=1000.00");
  for (const char* fixed : {"txtTierPerNum", "txtDiscAPY", "txtBal"}) {
    EXPECT_FALSE(IsEnabled(fixed)) << fixed;
  }
  Enter("txtIntRateA=5.5 txtTerm=92");
  Calculate();
  EXPECT_EQ(ReportRowCount(), 2);
  EXPECT_NEAR(session.disclosure.result->interest, 26.68, 0.005);
  EXPECT_EQ(Column(ReportCell::ComputedApy), "N/A 5.39%");
  EXPECT_EQ(Column(ReportCell::DisclosedApy), "5.39% 5.39%");
  EXPECT_EQ(Column(ReportCell::Verdict), " OK");
  EXPECT_EQ(Column(ReportCell::Balance), "$1,000.00 ");
  EXPECT_EQ(Column(ReportCell::Term), "91.00 92.00");
}

TEST_F(SteppedAccount, BackCorrectsEveryPeriodAndAnotherNumberForgetsThoseBehindTheFirst) {
  Continue();
  Complete("txtTierPerNum=3 txtDiscAPY=5 txtBal=1000 txtIntRateA=4.1265 txtTerm=100");
  Complete("txtIntRateA=5 txtTerm=120");
  Enter("txtIntRateA=6 txtTerm=145");
  Calculate();
  const double interest = session.disclosure.result->interest;
  Back();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Period No. 3");
  EXPECT_EQ(Text("txtIntRateA"), "6.00");
  Back();
  Back();
  EXPECT_EQ(Text("txtIntRateA"), "4.1265");
  Complete("txtBal=2000");
  EXPECT_EQ(Shown("txtIntRateA txtBal"), "txtIntRateA=5.00 txtBal=2000.00") << "as stored";
  Complete();
  Calculate();
  EXPECT_NEAR(session.disclosure.result->interest, 2 * interest, 0.01);
  for (int period = 3; period >= 1; --period) Back();
  Complete("txtTierPerNum=2");
  EXPECT_EQ(Text("txtIntRateA"), "");
  EXPECT_TRUE(IsShown("cmdCalculateResult"));
}

TEST_F(SteppedAccount, TheNumberOfPeriodsIsRefusedOnLeavingItsField) {
  Continue();
  for (const char* number : {"1", "11"}) {
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
  Continue("optICMonths txtDailyCompounding=3");
  Complete(
      "txtTierPerNum=2 txtBeginMonth=11 txtBeginYear=2023 txtDiscAPY=5 txtBal=1000 txtIntRateA=5 "
      "txtTerm=2");
  EXPECT_EQ(Shown("txtBeginMonth txtBeginYear"), "txtBeginMonth=05 txtBeginYear=2024");
  EXPECT_TRUE(IsEnabled("txtBeginMonth"));
}

}  // namespace
}  // namespace corvane
