#include "WindowTest.h"
#include "disclosure/frmAcctAdvertAPY.h"
#include "disclosure/frmAcctRegularStepped.h"
#include "disclosure/frmDisplayResultsweb.h"
#include "platform/WebView.h"
#include "shell/frmMain.h"

namespace corvane {
namespace {

/// From the main menu through the setup and entry windows to the report.
class RegularAccount : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<frmMain>();
    InFront<frmMain>();
    Click("cmdAcctAdv");
    InFront<frmAcctAdvertAPY>();
  }

  void Continue() {
    Click("cmdNext");
    InFront<frmAcctRegularStepped>();
  }

  void Enter(const char* disclosedApy, const char* balance, const char* rate, const char* term) {
    Type("txtDiscAPY", disclosedApy);
    Type("txtBal", balance);
    Type("txtIntRateA", rate);
    Type("txtTerm", term);
  }

  void Calculate() {
    Click("cmdCalculateResult");
    InFront<frmDisplayResultsweb>();
  }

  std::string Report() {
    QFile file(QString::fromStdString(session.AppDataFolder) + "/Disclosed_APY_Summary.html");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }
};

TEST_F(RegularAccount, ComputesTheRegulationsFiguresAndJudgesTheDisclosedOne) {
  // Regulation DD, Appendix A: 5.25 % compounded daily.
  Continue();
  Enter("5.44", "1000", "5.25", "365");
  Calculate();
  EXPECT_EQ(session.ComputedInterest, 53.90);
  EXPECT_EQ(session.ComputedApy, 5.39);
  EXPECT_EQ(session.ApyVerdict, "OK");
  EXPECT_NE(Report().find("<TD><Font Color=\"#000000\">OK</TD>"), std::string::npos);
  EXPECT_EQ(session.PeriodCount, 1);
  Click("cmdBack");
  InFront<frmAcctRegularStepped>();
  EXPECT_EQ(session.PeriodCount, 0);
  EXPECT_EQ(Text("txtBal"), "1000.00");
  EXPECT_EQ(Text("txtIntRateA"), "5.25");
  Type("txtDiscAPY", "5.45");
  Calculate();
  EXPECT_NE(Report().find("<TD><Font Color=\"#FF0000\">APY VIOLATION</TD>"), std::string::npos);
}

TEST_F(RegularAccount, TheReportStandsInTheBrowser) {
  Continue();
  Enter("5.44", "1000", "5.25", "365");
  Click("cmdCalculateResult");
  auto& results = InFront<frmDisplayResultsweb>();
  QSignalSpy shown(results.findChild<WebView*>("WebView"), &WebView::Shown);
  ASSERT_TRUE(shown.wait(20000));
  EXPECT_TRUE(shown.front().front().toBool());
}

}  // namespace
}  // namespace corvane
