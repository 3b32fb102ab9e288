#include "platform/SaveDialog.h"
#include "support/Paths.h"
#include "support/WholeFile.h"
#include "windows/disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class ResultsWindow : public DisclosureTest {
 protected:
  void Compute() {
    Enter("txtName=Bank txtDepositorName=Holder");
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
    SCOPED_TRACE(c.header);
    Compute();
    GoTo<DisclosureEntryWindow>("cmdBack");
    EXPECT_EQ(Text("txtIntRateA"), "5.2512");
    Calculate();
    c.leave();
    EXPECT_TRUE(session.disclosure.entries.empty());
    EXPECT_FALSE(IsVisible<DisclosureResultsWindow>() || IsVisible<DisclosureEntryWindow>());
    if (c.toMainMenu) Start();
    InFront<DisclosureSetupWindow>();
    EXPECT_EQ(Text("txtName") + "/" + Text("txtDepositorName"), c.header);
    Continue("optRegNoDisc");
    EXPECT_EQ(Text("txtBal"), "");
    GoTo<DisclosureSetupWindow>("cmdAcctInfo");
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
  QFile file(folder.filePath("my.html"));
  const auto saved = [&file] {
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const std::string content = file.readAll().toStdString();
    file.close();
    return content;
  };
  Menu("mnuFile", "mnuSave");
  EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "cancelled";
  EXPECT_EQ(asked.fileName, "Disclosed_APY_Summary.html");
  EXPECT_EQ(asked.folder.toStdString(), session.dataFolder.string());
  EXPECT_EQ(asked.filter, "HTML Files (*.htm *.html)");
  answer = "my.copy";
  Menu("mnuFile", "mnuSave");
  const std::string page = saved();
  EXPECT_EQ(page.find('\n'), page.size() - 1) << "one line";
  EXPECT_NE(page.find("Bank"), std::string::npos);
  ASSERT_TRUE(file.resize(0));
  for (const auto reply : {QMessageBox::No, QMessageBox::Yes}) {
    Expect({"my.html already exists.\nDo you want to replace it?", "Save As", MessageIcon::None,
            reply});
    Menu("mnuFile", "mnuSave");
    EXPECT_EQ(saved(), reply == QMessageBox::Yes ? page : "");
  }
  answer = "none/report.html";
  Expect({"The report could not be written: " + folder.filePath(answer).toStdString() +
              "\nNo such file or directory",
          "Error!", MessageIcon::None});
  Menu("mnuFile", "mnuSave");
}

TEST_F(ResultsWindow, WithoutAReportPrintAndSaveDoNothing) {
  const auto folder = session.dataFolder;
  std::filesystem::remove_all(folder);
  EXPECT_FALSE(WriteWholeFile(folder, "a file where the folder should be"));
  Expect({"The report could not be written: " + PathText(folder) +
              "/Disclosed_APY_Summary.html\nNot a directory",
          "Error!", MessageIcon::None});
  Compute();
  SetSaveAnswer([](const SaveQuestion&) -> std::optional<QString> {
    ADD_FAILURE() << "there is nothing to save";
    return std::nullopt;
  });
  Menu("mnuFile", "mnuSave");
  Click("cmdPrint");
  std::filesystem::remove(folder);
  GoTo<DisclosureEntryWindow>("cmdBack");
  Calculate();
  EXPECT_NE(Report().find("Bank"), std::string::npos) << "built anew";
}

class EndOfTheProgram : public ResultsWindow {
 protected:
  void TearDown() override {
    EXPECT_TRUE(windows.HasEnded());
    EXPECT_EQ(session.header.institution, "");
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
    }
    ResultsWindow::TearDown();
  }
};

TEST_F(EndOfTheProgram, ByTheFrameOfTheEntryAlsoAfterTheResults) {
  Compute();
  GoTo<DisclosureEntryWindow>("cmdBack");
  CloseByFrame();
}

TEST_F(EndOfTheProgram, ByExitOfTheResults) {
  Compute();
  Menu("mnuFile", "mnuExit");
}

}  // namespace
}  // namespace corvane
