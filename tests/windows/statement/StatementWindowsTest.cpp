#include "platform/SaveDialog.h"
#include "windows/WindowTest.h"
#include "windows/statement/StatementResultsWindow.h"

namespace corvane {
namespace {

TEST_F(WindowTest, TheStatementReportIsSavedUnderItsOwnName) {
  const QTemporaryDir folder;
  session.dataFolder = folder.path().toStdString();
  session.statement.result.emplace();
  windows.Show<StatementResultsWindow>();
  InFront<StatementResultsWindow>();
  SetSaveAnswer([&folder](const SaveQuestion& question) {
    EXPECT_EQ(question.fileName.toStdString(), "Statement_APY_Summary.htm");
    return folder.filePath("kept");
  });
  Menu("mnuFile", "mnuSave");
  EXPECT_TRUE(QFile::exists(folder.filePath("kept.html")));
}

}  // namespace
}  // namespace corvane
