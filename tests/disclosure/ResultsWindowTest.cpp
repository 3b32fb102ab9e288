#include "DisclosureTest.h"
#include "platform/SaveDialog.h"

namespace corvane {
namespace {

class ResultsWindow : public DisclosureTest {
 protected:
  void Compute() {
    Describe("txtName=Bank txtDepositorName=Holder");
    Continue("optICDays");
    Enter("txtDiscAPY=5.44 txtBal=1000 txtIntRateA=5.2512 txtTerm=365");
    Calculate();
  }
};

TEST_F(ResultsWindow, EachWayOutKeepsAndForgetsItsOwn) {
  const struct {
    std::function<void()> leave;
    bool toMainMenu;
    const char* header;
  } cases[] = {
      {[this] { Click("cmdAcct"); }, false, "Bank/"},
      {[this] { Menu("mnuFile", "mnuNewAccount"); }, false, "Bank/"},
      {[this] { Click("cmdExit"); }, true, "/"},
      {[this] { Menu("mnuFile", "mnuMain"); }, true, "Bank/Holder"},
  };
  for (const auto& c : cases) {
    Compute();
    Click("cmdBack");
    InFront<frmAcctRegularStepped>();
    EXPECT_EQ(Text("txtIntRateA"), "5.2512");
    EXPECT_EQ(session.PeriodCount, 0);
    Calculate();
    session.EntryDataKept = session.TierFormLoaded = true;
    c.leave();
    EXPECT_FALSE(session.EntryDataKept) << c.header;
    EXPECT_FALSE(session.TierFormLoaded) << c.header;
    EXPECT_EQ(session.InstitutionName + "/" + session.AccountHolder, c.header);
    EXPECT_FALSE(IsVisible<frmDisplayResultsweb>() || IsVisible<frmAcctRegularStepped>());
    if (c.toMainMenu) Start();
    InFront<frmAcctAdvertAPY>();
    EXPECT_EQ(Text("txtName") + "/" + Text("txtDepositorName"), c.header);
    Continue("optRegNoDisc");
    EXPECT_EQ(Text("txtBal"), "") << c.header;
    Click("cmdAcctInfo");
    InFront<frmAcctAdvertAPY>();
  }
}

TEST_F(ResultsWindow, SaveAsWritesThePageUnderTheFixedName) {
  Compute();
  QTemporaryDir folder;
  SaveQuestion asked;
  QString answer;
  SetSaveAnswer([&](const SaveQuestion& question) {
    asked = question;
    return answer.isEmpty() ? std::nullopt : std::optional(folder.filePath(answer));
  });
  const auto content = [&folder](const char* name) {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
  };
  Menu("mnuFile", "mnuSave");
  EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "cancelled";
  EXPECT_EQ(asked.fileName, "Disclosed_APY_Summary.html");
  EXPECT_EQ(asked.folder.toStdString(), session.AppDataFolder);
  EXPECT_EQ(asked.filter, "HTML Files (*.htm *.html)");
  answer = "my.copy";
  Menu("mnuFile", "mnuSave");
  const std::string saved = content("my.html");
  EXPECT_EQ(saved.find('\n'), saved.size() - 1) << "one line";
  EXPECT_NE(saved.find("Bank"), std::string::npos);
  QFile earlier(folder.filePath("my.html"));
  ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
  earlier.close();
  const std::string question = "my.html already exists.\nDo you want to replace it?";
  Expect({question, "Save As", MessageIcon::None, QMessageBox::No});
  Menu("mnuFile", "mnuSave");
  EXPECT_EQ(content("my.html"), "");
  Expect({question, "Save As", MessageIcon::None, QMessageBox::Yes});
  Menu("mnuFile", "mnuSave");
  EXPECT_EQ(content("my.html"), saved);
  answer = "none/report";
  Menu("mnuFile", "mnuSave");  // a path that cannot be written is no message
}

TEST_F(ResultsWindow, WithoutAReportPrintAndSaveDoNothing) {
  const auto folder = std::exchange(session.AppDataFolder, "/no such folder");
  Expect(
      {"The report could not be written: /no such folder/Disclosed_APY_Summary.html\n"
       "No such file or directory",
       "Error!", MessageIcon::None});
  Compute();
  SetSaveAnswer([](const SaveQuestion&) -> std::optional<QString> {
    ADD_FAILURE() << "there is nothing to save";
    return std::nullopt;
  });
  Menu("mnuFile", "mnuSave");
  Click("cmdPrint");
  session.AppDataFolder = folder;
  Click("cmdBack");
  InFront<frmAcctRegularStepped>();
  Calculate();
  EXPECT_NE(Report().find("Bank"), std::string::npos) << "built anew";
}

enum class Depth { Setup, Entry, Results };

class EndOfTheProgram : public ResultsWindow,
                        public testing::WithParamInterface<std::tuple<Depth, bool>> {};

TEST_P(EndOfTheProgram, EveryFrameAndEveryExitEndsIt) {
  const auto& [depth, byFrame] = GetParam();
  if (depth == Depth::Setup) Describe("txtName=Bank txtDepositorName=Holder");
  if (depth == Depth::Entry) Continue("txtName=Bank");
  if (depth == Depth::Results) Compute();
  EXPECT_EQ(session.InstitutionName, "Bank");
  if (byFrame) {
    CloseByFrame();
  } else {
    Menu("mnuFile", "mnuExit");
  }
  EXPECT_TRUE(windows.HasEnded());
  EXPECT_EQ(session.InstitutionName, "");
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Windows, EndOfTheProgram,
    testing::Combine(testing::Values(Depth::Setup, Depth::Entry, Depth::Results), testing::Bool()));

}  // namespace
}  // namespace corvane
