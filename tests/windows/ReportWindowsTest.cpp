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

/// The reason comes in the language of the system.
std::string NotWritten(const std::string& file, int reason) {
  return "The report could not be written: " + file + "\n" +
         std::generic_category().message(reason);
}

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

/// Answers the print dialog that opens next: as a file, whatever printers there are.
void PrintTo(const QString& file) {
  QTimer::singleShot(0, qApp, [file] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    auto* printers = dialog ? dialog->findChild<QComboBox*>("printers") : nullptr;
    ASSERT_TRUE(printers);
    printers->setCurrentIndex(printers->findText("Print to File", Qt::MatchStartsWith));
    dialog->findChild<QLineEdit*>("filename")->setText(file);
    dialog->accept();
  });
}

/// Whether a screen reader finds the text below a part.
bool IsReadable(const QAccessibleInterface* part, const QString& text) {
  if (!part || !part->isValid()) return false;
  if (part->text(QAccessible::Name).contains(text)) return true;
  for (int index = 0; index < part->childCount(); ++index) {
    if (IsReadable(part->child(index), text)) return true;
  }
  return false;
}

TEST_F(ReportWindows, APageReachesNothingBeyondItself) {
  const QTemporaryDir folder;
  const auto path = [&folder](const char* name) { return folder.filePath(name).toStdString(); };
  WriteWholeFile(path("other.css"), "#style{display:none}");
  WriteWholeFile(path("other.html"), "other page");
  WriteWholeFile(
      path("report.html"),
      "<a href=other.html style='display:block;height:99vh'>link</a><p id=script>no script</p>"
      "<p id=style>no style</p><link rel=stylesheet href=other.css>"
      "<script>document.getElementById('script').textContent='script ran'</script>");
  Compute();
  auto* view = Get<WebView>("WebView");
  QSignalSpy shown(view, &WebView::Shown);
  ASSERT_TRUE(shown.wait(20000));
  view->ShowFile(folder.filePath("report.html"));
  ASSERT_TRUE(shown.wait(20000));
  QAccessible::setActive(true);
  auto* const page = QAccessible::queryAccessibleInterface(view);
  for (const char* text : {"link", "no style", "no script"}) {
    EXPECT_TRUE(QTest::qWaitFor([page, text] { return IsReadable(page, text); }, 5000)) << text;
  }
  QAccessible::setActive(false);
  view->setFocus();
  QTest::mouseClick(QApplication::focusWidget(), Qt::LeftButton);
  EXPECT_FALSE(shown.wait(1000)) << "the link was followed, or its refusal taken for a failure";
}

TEST_F(ReportWindows, AReportThatAnotherProgramReplacedIsBuiltAgain) {
  Compute();
  QSignalSpy shown(Get<WebView>("WebView"), &WebView::Shown);
  const auto file = session.dataFolder / "Disclosed_APY_Summary.html";
  const auto written = ReadWholeFile(file);
  EXPECT_FALSE(WriteWholeFile(file, "the report of another account"));
  ASSERT_TRUE(shown.wait(20000));
  ASSERT_TRUE(shown.wait(20000)) << "shown as it was found";
  EXPECT_EQ(std::get<std::string>(ReadWholeFile(file)), std::get<std::string>(written));
}

TEST_F(ReportWindows, TheBrowserShowsTheReportForEyesEarsAndKeys) {
  Compute();
  auto* view = Get<WebView>("WebView");
  QSignalSpy shown(view, &WebView::Shown);
  ASSERT_TRUE(shown.wait(20000));
  EXPECT_TRUE(shown.front().front().toBool());
  // As a screen reader does when it starts.
  QAccessible::setActive(true);
  auto* const report = QAccessible::queryAccessibleInterface(view);
  EXPECT_TRUE(QTest::qWaitFor([report] { return IsReadable(report, "5.39%"); }, 20000));
  EXPECT_TRUE(view->isAncestorOf(QApplication::focusWidget()));
  const auto* browser = view->focusProxy();
  for (const auto& [key, zoom] : {std::pair{Qt::Key_Plus, 1.1},
                                  {Qt::Key_Equal, 1.2},
                                  {Qt::Key_Minus, 1.1},
                                  {Qt::Key_0, 1.0},
                                  {Qt::Key_Minus, 0.9}}) {
    Key(key, Qt::ControlModifier);
    EXPECT_NEAR(browser->property("zoomFactor").toDouble(), zoom, 1e-6);
  }
  const QTemporaryDir folder;
  PrintTo(folder.filePath("printed.pdf"));
  Click("cmdPrint");
  EXPECT_EQ(Caption("lblHint"), "Printed");
  EXPECT_GT(QFileInfo(folder.filePath("printed.pdf")).size(), 1000);
  view->setFocus();
  Key(Qt::Key_Return);
  InFront<DisclosureEntryWindow>();
  Key(Qt::Key_Return);
  InFront<DisclosureResultsWindow>();
  EXPECT_NEAR(Get<WebView>("WebView")->focusProxy()->property("zoomFactor").toDouble(), 0.9, 1e-6);
  QAccessible::setActive(false);
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
  EXPECT_EQ(Caption("lblHint"), "Saved as " + folder.filePath("my.html").toStdString());
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
  Expect({NotWritten(folder.filePath(answer).toStdString(), ENOENT), "Error!", MessageIcon::None});
  Menu("mnuSave");
}

TEST_F(ReportWindows, WithoutAReportPrintAndSaveDoNothing) {
  const auto folder = session.dataFolder;
  std::filesystem::remove_all(folder);
  EXPECT_FALSE(WriteWholeFile(folder, "a file where the folder should be"));
  Expect({NotWritten(PathText(folder) + "/Disclosed_APY_Summary.html", ENOTDIR), "Error!",
          MessageIcon::None});
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
