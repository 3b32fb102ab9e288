#pragma once

#include <functional>

#include "WindowTest.h"
#include "shell/frmMain.h"
#include "statement/frmCallStatement.h"
#include "statement/frmDisplayResultsStatement.h"
#include "statement/frmInterestReport.h"
#include "statement/frmInterestbyDay.h"
#include "statement/frmStatementUseandSelect.h"

namespace corvane {

/// A person at the statement windows, standing in the setup as the main menu opens it.
class StatementWindows : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<frmMain>();
    InFront<frmMain>();
    Click("cmdStatement");
    InFront<frmStatementUseandSelect>();
  }

  /// Without compounding the interest of the days is the plain sum.
  void ContinueWithoutCompounding() {
    Choose("optICNone");
    Continue();
  }

  void Continue() {
    Click("cmdNext");
    InFront<frmCallStatement>();
  }

  /// Everything but period, balance and interest.
  void EnterTerms(const char* disclosedApy, const char* rate, const char* method = "optADB") {
    Type("txtMinADB", "0");
    Type("txtMinDBal", "0");
    Type("txtDClApy", disclosedApy);
    if (IsEnabled("txtIntRate")) Type("txtIntRate", rate);
    if (IsEnabled(method)) Choose(method);
  }

  void EnterBalance(const char* average, const char* interest) {
    Type("txtADBLedgerBalance", average);
    Type("txtIntAmt", interest);
  }

  void Calculate() {
    Click("cmdCalculate");
    InFront<frmDisplayResultsStatement>();
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
    ClickInto<frmInterestbyDay>(compute, acts);
    InFront<frmCallStatement>();
  }

  /// Types a balance into so many days, one after the other.
  void TypeDays(int count, const char* balance) {
    for (int day = 0; day < count; ++day) {
      Keys(balance);
      Key(Qt::Key_Tab);
    }
  }

  std::string ReportText(const char* file) const {
    QFile report(QString::fromStdString(session.AppDataFolder) + "/" + file);
    EXPECT_TRUE(report.open(QIODevice::ReadOnly)) << file;
    return report.readAll().toStdString();
  }
};

inline bool Holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace corvane
