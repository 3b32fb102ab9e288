#include "platform/WebView.h"
#include "windows/disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class RegularAccount : public DisclosureTest {};

TEST_F(RegularAccount, ComputesEveryUnitWithAndWithoutWithdrawals) {
  const struct {
    const char *choices, *entries;
    const char *interest, *apy;
  } cases[] = {
      // Regulation DD, Appendix A, Part I.A: 61.68 on $1,000 in a year.
      {"optICNone", "txtIntRateA=6.168 txtTerm=365", "$61.68", "6.17%"},
      // Each month's interest compounds daily and is then withdrawn: the sum of
      // 1000 ((1 + 0.05/365)^d - 1) over the months of 2023.
      {"optICDays optRIMonths",
       "txtBeginMonth=1 txtBeginYear=2023 txtIntRateA=5 txtTerm=365 txtWdrwlPeriods=12 "
       "txtBtwnReqIntWdrwl=1",
       "$50.10", "5.01%"},
      // 12 periods of 30 days: 1000 ((1 + 0.05/365)^360 - 1), the APY raised to 365/360.
      {"optICDays optRINotReq txtDailyCompounding=30",
       "txtIntRateA=5 txtTerm=0 tStartDate=01-01-2023 tEndDate=12-27-2023", "$50.55", "5.13%"},
      // Two years: 1000 (1.05^2 - 1).
      {"optICYears", "txtIntRateA=5 txtTerm=2", "$102.50", "5.00%"},
      // A year of 366 days: 1000 ((1 + 0.05/366)^366 - 1).
      {"optICDays optDY366", "txtIntRateA=5 txtTerm=366", "$51.27", "5.13%"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.choices) + " " + c.entries);
    Continue(c.choices);
    Enter("txtDiscAPY=5 txtBal=1000");
    Enter(c.entries);
    Calculate();
    EXPECT_EQ(Column(ReportCell::Interest), c.interest);
    EXPECT_EQ(Column(ReportCell::ComputedApy), c.apy);
    GoTo<DisclosureSetupWindow>("cmdAcct");
  }
}

TEST_F(RegularAccount, TheBrowserShowsTheDisclosedFigureJudgedInColour) {
  Continue();
  Enter("txtDiscAPY=5.44 txtBal=1000 txtIntRateA=5.25 txtTerm=365");
  Click("cmdCalculateResult");
  auto& results = InFront<DisclosureResultsWindow>();
  QSignalSpy shown(results.findChild<WebView*>("WebView"), &WebView::Shown);
  ASSERT_TRUE(shown.wait(20000));
  EXPECT_TRUE(shown.front().front().toBool());
  EXPECT_NE(Report().find("<TD><Font Color=\"#000000\">OK</TD>"), std::string::npos);
  GoTo<DisclosureEntryWindow>("cmdBack");
  Enter("txtDiscAPY=5.45");
  Calculate();
  EXPECT_NE(Report().find("<TD><Font Color=\"#FF0000\">APY VIOLATION</TD>"), std::string::npos);
}

}  // namespace
}  // namespace corvane
