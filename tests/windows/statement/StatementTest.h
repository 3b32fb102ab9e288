#pragma once

#include <functional>

#include "windows/WindowTest.h"
#include "windows/start/MainMenu.h"
#include "windows/statement/DailyBalancesWindow.h"
#include "windows/statement/InterestReportWindow.h"
#include "windows/statement/StatementEntryWindow.h"
#include "windows/statement/StatementResultsWindow.h"
#include "windows/statement/StatementSetupWindow.h"

namespace corvane {

/// A person at the statement windows, standing in the setup as the main menu opens it.
class StatementWindows : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<MainMenu>();
    InFront<MainMenu>();
    Click("cmdStatement");
    InFront<StatementSetupWindow>();
  }

  /// Without compounding the interest of the days is the plain sum.
  void ContinueUncompounded() {
    Choose("optICNone");
    Click("cmdNext");
    InFront<StatementEntryWindow>();
  }

  /// Everything but balance and interest.
  void EnterTerms(const char* disclosedApy, const char* rate, const char* days,
                  const char* method = "optADB") {
    Type("txtMinADB", "0");
    Type("txtMinDBal", "0");
    Type("txtDClApy", disclosedApy);
    if (IsEnabled("txtIntRate")) Type("txtIntRate", rate);
    if (IsEnabled(method)) Choose(method);
    Type(IsEnabled("txtLedgerdays") ? "txtLedgerdays" : "txtColDays", days);
  }

  void Calculate() {
    Click("cmdCalculate");
    InFront<StatementResultsWindow>();
  }

  /// Clicks a button that opens a window above and does the acts in that window. Acts that leave it
  /// open must not leave the test hanging.
  template <class AForm>
  void ClickInto(const char* button, const std::function<void()>& acts) {
    QTimer::singleShot(0, [this, acts] {
      InFront<AForm>();
      acts();
      EXPECT_FALSE(IsVisible<AForm>()) << "the window above should have closed";
      windows.Discard<AForm>();
    });
    Click(button);
  }

  void Days(const char* compute, const std::function<void()>& acts) {
    ClickInto<DailyBalancesWindow>(compute, acts);
    InFront<StatementEntryWindow>();
  }

  void ShowLastPage() {
    while (IsEnabled("cmdNext")) Click("cmdNext");
  }

  /// Types a balance into so many days, one after the other.
  void TypeDays(int count, const char* balance) {
    for (int day = 0; day < count; ++day) {
      Keys(balance);
      Key(Qt::Key_Tab);
    }
  }

  void ComputeDays(const char* compute, int count, const char* balance) {
    Days(compute, [this, count, balance] {
      TypeDays(count, balance);
      Click("cmdContinue");
    });
  }

  void CalculateRefused(const std::string& message, const char* field) {
    ExpectText(message);
    Click("cmdCalculate");
    InFront<StatementEntryWindow>();
    EXPECT_EQ(Focus(), field) << message;
  }

  /// How often a report holds a text.
  int CountInReport(const char* file, const char* part) const {
    QFile report(session.dataFolder / file);
    EXPECT_TRUE(report.open(QIODevice::ReadOnly)) << file;
    return static_cast<int>(report.readAll().count(part));
  }
};

}  // namespace corvane
