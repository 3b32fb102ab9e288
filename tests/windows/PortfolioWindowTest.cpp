#include <fstream>

#include "TemporaryFolder.h"
#include "platform/SaveDialog.h"
#include "windows/WindowTest.h"
#include "windows/portfolio/PortfolioWindow.h"
#include "windows/start/MainMenu.h"

namespace corvane {
namespace {

constexpr int kAccounts = 100'000;

/// Accounts of a rate that grows with their line; one of a hundred states another APY.
class PortfolioWindowTest : public WindowTest {
 protected:
  std::filesystem::path MakeFile() {
    const auto path = folder_.Path() / "accounts.csv";
    std::ofstream file(path);
    file << "account,compounding,disclosed_apy,balance,rate,term,remark\n";
    for (int account = 1; account <= kAccounts; ++account) {
      file << 'A' << account << ",none," << (account % 100 == 0 ? "9" : "5") << ",1000,5,365,x\n";
    }
    return path;
  }

  PortfolioWindow& Check(const std::filesystem::path& file) {
    windows.routes().CheckFiles({file});
    return InFront<PortfolioWindow>();
  }

  void Drop(QWidget& window, const std::vector<std::filesystem::path>& paths) {
    QMimeData files;
    QList<QUrl> urls;
    for (const auto& path : paths)
      urls << QUrl::fromLocalFile(QString::fromStdString(path.string()));
    files.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    EXPECT_TRUE(drop.isAccepted());
  }

  const TemporaryFolder folder_;
};

TEST_F(PortfolioWindowTest, AHundredThousandAccountsShowWhileTheyAreReadAndAreSortedAndFiltered) {
  auto& window = Check(MakeFile());
  auto* table = Get<QTableView>("tblResults");
  const auto shown = [table](int row, int column) {
    return table->model()->index(row, column).data().toString().toStdString();
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount() > 0; }));
  EXPECT_TRUE(window.IsReading());
  table->scrollToBottom();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.IsReading(); }, 100000));
  EXPECT_EQ(table->model()->rowCount(), kAccounts);
  EXPECT_EQ(Caption("lblCounts"), "100,000 accounts: 99,000 OK, 1,000 violations, 0 refused.");

  auto* header = table->horizontalHeader();
  const auto sort = [&](int column) {
    const QPoint place(header->sectionViewportPosition(column) + 5, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.Results().IsSettled(); }));
  };
  sort(5);
  EXPECT_EQ(shown(0, 1), "A100") << "the greatest difference below 0 first, in the file's order";
  sort(5);
  EXPECT_EQ(shown(0, 1), "A1");
  sort(1);
  EXPECT_EQ(shown(kAccounts - 1, 1), "A99999") << "names are sorted as texts";
  Type("txtFilter", "a9999");
  EXPECT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount() == 11; }));
  Type("cboVerdict", "APY");
  EXPECT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount() == 0; }));

  Type("txtFilter", "A100000");
  EXPECT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount() == 1; }));
  const auto saved = folder_.Path() / "saved.csv";
  SetSaveAnswer([&](const SaveQuestion&) { return QString::fromStdString(saved.string()); });
  Expect({.text = "Only some rows are shown. Save only the accounts that are shown?",
          .title = "Save Results",
          .icon = MessageIcon::None,
          .answer = QMessageBox::Yes});
  Click("cmdSave");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Caption("lblHint").starts_with("Saved as"); }));
  std::ifstream file(saved);
  std::string first, second, third;
  EXPECT_TRUE(std::getline(file, first) && std::getline(file, second));
  EXPECT_TRUE(first.starts_with("account,compounding") && first.ends_with("computed_average"));
  EXPECT_TRUE(second.starts_with("A100000,none,9,1000,5,365,x,50.00,5.00,-4.00,APY VIOLATION"))
      << second;
  EXPECT_FALSE(std::getline(file, third));
}

TEST_F(PortfolioWindowTest, AReadingThatIsCancelledKeepsWhatItHasAndOneThatIsLeftGoesOn) {
  const auto file = MakeFile();
  auto& window = Check(file);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.Results().RowsRead() > 0; }));
  Click("cmdCancel");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.IsReading(); }));
  EXPECT_LT(window.Results().RowsRead(), kAccounts);
  EXPECT_EQ(Caption("lblHint"), "Cancelled: the file was not read to its end.");
  EXPECT_TRUE(IsEnabled("cmdSave"));
  windows.routes().CheckFiles({file});
  Click("cmdMain");
  InFront<MainMenu>();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.Results().RowsRead() > 0; }));
  EXPECT_TRUE(window.IsReading());
  Menu("mnuCheckFile");
  InFront<PortfolioWindow>();
  CloseByFrame();
  EXPECT_TRUE(windows.HasEnded());
}

TEST_F(PortfolioWindowTest, FilesThatAreDroppedAreToldApart) {
  const auto accounts = folder_.Path() / "statements.csv", days = folder_.Path() / "days.csv";
  std::ofstream(accounts) << "account,check,disclosed_apy,rate,start_date,end_date,method,"
                             "minimum_adb,minimum_daily\n"
                             "S,statement,3.00,3,2024-01-01,2024-01-03,adb,0,0\n";
  std::ofstream(days) << "account,date,balance\nS,2024-01-01,1000\nS,2024-01-02,1000\n";
  windows.Show<MainMenu>();
  auto& menu = InFront<MainMenu>();
  // Taken once the drop is over: by then the person may have gone on.
  Drop(menu, {accounts});
  windows.routes().StartStatement();
  QCoreApplication::processEvents();
  EXPECT_FALSE(IsVisible<PortfolioWindow>());
  windows.routes().ShowMainMenu();
  InFront<MainMenu>();
  for (const char* read : {"a file", "another"}) {
    Expect({.text = "The file has statements without an average balance.\nDo you want to choose "
                    "the file of their daily balances?",
            .title = "Check a File",
            .icon = MessageIcon::None,
            .answer = QMessageBox::No});
    Drop(*Front(), {accounts});
    const auto& table = InFront<PortfolioWindow>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !table.IsReading() && boxes.empty(); })) << read;
  }
  auto& window = InFront<PortfolioWindow>();
  EXPECT_EQ(Caption("lblCounts"), "1 account: 0 OK, 0 violations, 1 refused.");
  Drop(window, {days});
  EXPECT_TRUE(QTest::qWaitFor([&] { return Caption("lblFile").ends_with("days.csv"); }));
  Drop(window, {days, accounts});
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return Caption("lblCounts").find("1 OK") != std::string::npos; }));
  EXPECT_EQ(Caption("lblFile"), accounts.string() + ", daily balances: days.csv");
  EXPECT_EQ(Caption("lblCounts"), "1 account: 1 OK, 0 violations, 0 refused.");
}

}  // namespace
}  // namespace corvane
