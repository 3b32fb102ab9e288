#pragma once

#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"
#include "windows/disclosure/DisclosureResultsWindow.h"
#include "windows/disclosure/DisclosureSetupWindow.h"
#include "windows/disclosure/TierTableWindow.h"
#include "windows/start/MainMenu.h"

namespace corvane {

/// From the main menu through the setup and entry windows to the report. Choices and entries are
/// written as words: "optICDays optDY366", "txtBal=1000 txtTerm=365".
class DisclosureTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    windows.Show<MainMenu>();
    Start();
  }

  /// Clicks the button that leads to another window, in which the following acts are done.
  template <class AForm>
  void GoTo(const QString& button) {
    Click(button);
    InFront<AForm>();
  }

  void Start() {
    InFront<MainMenu>();
    GoTo<DisclosureSetupWindow>("cmdAcctAdv");
  }

  /// Chooses options of the window in front and types into its fields.
  void Enter(const QString& entries) {
    for (const QString& word : entries.split(' ', Qt::SkipEmptyParts)) {
      const QStringList parts = word.split('=');
      parts.size() > 1 ? Type(parts[0], parts[1]) : Choose(word);
    }
  }

  void Continue(const QString& choices = {}) {
    Enter(choices);
    GoTo<DisclosureEntryWindow>("cmdNext");
  }

  void Calculate() { GoTo<DisclosureResultsWindow>("cmdCalculateResult"); }

  /// What the fields of the entries now show, in the same words.
  std::string Shown(const QString& entries) {
    QStringList shown;
    for (const QString& word : entries.split(' ')) {
      const QString field = word.section('=', 0, 0);
      shown += field + "=" + QString::fromStdString(Text(field));
    }
    return shown.join(' ').toStdString();
  }

  std::string Report() {
    QFile file(session.dataFolder / "Disclosed_APY_Summary.html");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }

  QStringList ReportRows() {
    QStringList rows = QString::fromStdString(Report()).split("<TR align=center>");
    rows.removeFirst();
    return rows;
  }

  int ReportRowCount() { return static_cast<int>(ReportRows().size()); }

  enum class ReportCell {
    Number,
    Balance,
    Rate,
    Term,
    Interest,
    DisclosedApy,
    ComputedApy,
    Verdict
  };

  /// What a column of the report's rows shows, joined with blanks.
  std::string Column(ReportCell cell) {
    static const QRegularExpression markup("<[^>]*>|&nbsp;");
    QStringList shown;
    for (const QString& row : ReportRows()) {
      shown += row.section("</TD>", int(cell), int(cell)).remove(markup).trimmed();
    }
    return shown.join(' ').toStdString();
  }
};

}  // namespace corvane
