#include "WindowTest.h"
#include "disclosure/frmAcctAdvertAPY.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

namespace corvane {
namespace {

class Navigation : public WindowTest {};

TEST_F(Navigation, TheDisclaimerLeadsToTheMainMenuAndTheFrameEndsTheProgram) {
  windows.Show<frmSplash>();
  EXPECT_EQ(InFront<frmSplash>().windowTitle().toStdString(), " Annual Percentage Yield");
  Click("cmdOK");
  InFront<frmMain>();
  EXPECT_FALSE(IsVisible<frmSplash>());
  EXPECT_EQ(session.RoundingDigits, 15);
  EXPECT_TRUE(QDir(QString::fromStdString(session.AppDataFolder)).exists());
  EXPECT_FALSE(windows.HasEnded());
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded());
}

TEST_F(Navigation, EscapeOnTheMainMenuEndsTheProcessAtOnce) {
  windows.Show<frmMain>();
  InFront<frmMain>();
  session.InstitutionName = "First Bank";
  Key(Qt::Key_Tab);
  EXPECT_FALSE(windows.HasEnded());
  Key(Qt::Key_Escape);
  EXPECT_TRUE(windows.HasEnded());
  EXPECT_EQ(session.InstitutionName, "First Bank") << "the orderly way out would have cleared it";
}

TEST_F(Navigation, TheFrameOfTheAboutWindowClosesOnlyIt) {
  windows.Show<frmSplash>();
  InFront<frmSplash>();
  Click("cmdAbout");
  EXPECT_EQ(InFront<frmAbout>().windowTitle().toStdString(), "About Corvane Calculator");
  EXPECT_EQ(Caption("lblVersion"), "Version 2.1.18");
  CloseByFrame();
  EXPECT_FALSE(windows.HasEnded());
  InFront<frmSplash>();
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded());
}

}  // namespace
}  // namespace corvane
