#pragma once

#include "WindowTest.h"
#include "disclosure/frmAcctAdvertAPY.h"
#include "disclosure/frmAcctRegularStepped.h"
#include "disclosure/frmAcctTieredAB.h"
#include "disclosure/frmDisplayResultsweb.h"
#include "shell/frmMain.h"

namespace corvane {

/// From the main menu through the setup and entry windows to the report. Choices and entries are
/// written as words: "optICDays optDY366", "txtBal=1000 txtTerm=365".
class DisclosureTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<frmMain>();
    Start();
  }

  void Start() {
    InFront<frmMain>();
    Click("cmdAcctAdv");
    InFront<frmAcctAdvertAPY>();
  }

  /// Chooses options of the setup window and types into its fields.
  void Describe(const QString& choices) {
    for (const QString& word : choices.split(' ', Qt::SkipEmptyParts)) {
      const QStringList parts = word.split('=');
      parts.size() > 1 ? Type(parts[0], parts[1]) : Choose(word);
    }
  }

  void Continue(const QString& choices = {}) {
    Describe(choices);
    Click("cmdNext");
    InFront<frmAcctRegularStepped>();
  }

  void Enter(const QString& entries) { Describe(entries); }

  /// What the fields of the entries now show, in the same words.
  QString Shown(const QString& entries) {
    QStringList shown;
    for (const QString& word : entries.split(' ')) {
      const QString field = word.section('=', 0, 0);
      shown += field + "=" + QString::fromStdString(Text(field));
    }
    return shown.join(' ');
  }

  void Calculate() {
    Click("cmdCalculateResult");
    InFront<frmDisplayResultsweb>();
  }

  std::string Report() {
    QFile file(QString::fromStdString(session.AppDataFolder) + "/Disclosed_APY_Summary.html");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }

  int ReportRowCount() {
    return static_cast<int>(QString::fromStdString(Report()).count("<TR align=center>"));
  }

  /// A column of the report's rows, joined with blanks.
  static std::string Column(const Table<std::string>& column) {
    std::string joined;
    for (int row = column.First(); row <= column.Last(); ++row) {
      joined += (row > column.First() ? " " : "") + column.At(row);
    }
    return joined;
  }
};

}  // namespace corvane
