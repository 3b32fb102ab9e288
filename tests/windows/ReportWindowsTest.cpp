#include "platform/SaveDialog.h"
#include "platform/WebView.h"
#include "support/Paths.h"
#include "support/WholeFile.h"
#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/StatementResultsWindow.h"

namespace corvane {
namespace {

class ReportWindows : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<MainMenu>();
  }

  /// From the main menu to the report of a disclosure.
  void Compute() {
    InFront<MainMenu>();
    Click("cmdAcctAdv");
    InFront<DisclosureSetupWindow>();
    Type("txtName", "Bank");
    Click("cmdNext");
    InFront<DisclosureEntryWindow>();
    for (const auto& [field, text] : {std::pair{"txtDiscAPY", "5.44"},
                                      {"txtBal", "1000"},
                                      {"txtIntRateA", "5.25"},
                                      {"txtTerm", "365"}}) {
      Type(field, text);
    }
    Click("cmdCalculateResult");
    InFront<DisclosureResultsWindow>();
  }
};

TEST_F(ReportWindows, TheBrowserShowsTheReport) {
  Compute();
  auto* view = Get<WebView>("WebView");
  QSignalSpy shown(view, &WebView::Shown);
  ASSERT_TRUE(shown.wait(20000));
  EXPECT_TRUE(shown.front().front().toBool());
}

TEST_F(ReportWindows, SaveAsWritesThePageUnderTheFixedName) {
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
  Menu("mnuSave");
  EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "cancelled";
  EXPECT_EQ(asked.fileName, "Disclosed_APY_Summary.html");
  EXPECT_EQ(asked.folder.toStdString(), session.dataFolder.string());
  EXPECT_EQ(asked.filter, "HTML Files (*.htm *.html)");
  answer = "my.copy";
  Menu("mnuSave");
  const std::string page = saved();
  EXPECT_EQ(page.find('\n'), page.size() - 1) << "one line";
  EXPECT_NE(page.find("Bank"), std::string::npos);
  ASSERT_TRUE(file.resize(0));
  for (const auto reply : {QMessageBox::No, QMessageBox::Yes}) {
    Expect({"my.html already exists.\nDo you want to replace it?", "Save As", MessageIcon::None,
            reply});
    Menu("mnuSave");
    EXPECT_EQ(saved(), reply == QMessageBox::Yes ? page : "");
  }
  answer = "none/report.html";
  Expect({"The report could not be written: " + folder.filePath(answer).toStdString() +
              "\nNo such file or directory",
          "Error!", MessageIcon::None});
  Menu("mnuSave");
}

TEST_F(ReportWindows, WithoutAReportPrintAndSaveDoNothing) {
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
  Menu("mnuSave");
  Click("cmdPrint");
  std::filesystem::remove(folder);
  Click("cmdBack");
  InFront<DisclosureEntryWindow>();
  Click("cmdCalculateResult");
  EXPECT_TRUE(std::filesystem::exists(folder / "Disclosed_APY_Summary.html")) << "built anew";
}

TEST_F(ReportWindows, TheStatementReportIsSavedUnderItsOwnName) {
  session.statement.result.emplace();
  windows.Show<StatementResultsWindow>();
  InFront<StatementResultsWindow>();
  const QTemporaryDir folder;
  SetSaveAnswer([&folder](const SaveQuestion& question) {
    EXPECT_EQ(question.fileName.toStdString(), "Statement_APY_Summary.htm");
    return folder.filePath("kept");
  });
  Menu("mnuSave");
  EXPECT_TRUE(QFile::exists(folder.filePath("kept.html")));
}

}  // namespace
}  // namespace corvane
