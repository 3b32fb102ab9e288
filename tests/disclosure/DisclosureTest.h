#pragma once

#include "WindowTest.h"
#include "disclosure/frmAcctAdvertAPY.h"
#include "disclosure/frmAcctRegularStepped.h"
#include "disclosure/frmAcctTieredAB.h"
#include "disclosure/frmDisplayResultsweb.h"
#include "shell/frmMain.h"

namespace corvane {

/// Starts on the disclosure setup window, reached from the main menu.
class DisclosureTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<frmMain>();
    InFront<frmMain>();
    Click("cmdAcctAdv");
    InFront<frmAcctAdvertAPY>();
  }

  /// Types into each field that is named; an empty text leaves the field alone.
  void Enter(const std::vector<std::pair<const char*, const char*>>& entries) {
    for (const auto& [field, text] : entries) Type(field, text);
  }

  /// A column of the report's rows, joined with blanks.
  static std::string Column(const Table<std::string>& column) {
    std::string joined;
    for (int row = column.First(); row <= column.Last(); ++row) {
      joined += (row > column.First() ? " " : "") + column.At(row);
    }
    return joined;
  }

  int ReportRowCount() const {
    QFile file(QString::fromStdString(session.AppDataFolder) + "/Disclosed_APY_Summary.html");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return static_cast<int>(file.readAll().count("<TR align=center>"));
  }
};

}  // namespace corvane
