#include "platform/WebView.h"
#include "windows/disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class RegularAccount : public DisclosureTest {};

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
