#include "windows/disclosure/TierTableWindow.h"
#include "windows/statement/StatementTest.h"

namespace corvane {
namespace {

/// Statements of tiered accounts: 1 % up to $1,000 and 2 % above, nothing compounds.
class TieredStatement : public StatementWindows {
 protected:
  void OpenTable(const char* method) {
    Choose("optICNone");
    Choose(method);
    Click("cmdNext");
    InFront<TierTableWindow>();
  }

  void TypeTable() {
    auto* list = Get<QComboBox>("cboTotalTiers");
    list->setFocus();
    QTest::keyClicks(list, "2");
    Type("txtInt(1)", "1");
    Type("txt_bne(1)", "1000");
    Type("txtInt(2)", "2");
  }

  void OpenPeriod() {
    Click("cmdCalculate");
    InFront<StatementEntryWindow>();
  }

  void ComputeTenDaysOf2000() {
    EnterTerms("1.5", "", "10");
    ComputeDays("cmdComputeLADB", 10, "2000");
  }
};

TEST_F(TieredStatement, EveryDayEarnsByItsTiers) {
  struct Case {
    const char *method, *interest;
    double apy;
  };
  // A: 2 % on all; B: 1 % on $1,000 and 2 % on the rest; both 10 / 365 of a year.
  // 100 x ((1 + interest / 2,000) ^ (365 / 10) - 1)
  for (const Case& c : {Case{"optTierA", "1.10", 2.03}, Case{"optTierB", "0.82", 1.51}}) {
    SCOPED_TRACE(c.method);
    OpenTable(c.method);
    TypeTable();
    OpenPeriod();
    EXPECT_FALSE(IsEnabled("txtIntRate"));
    ComputeTenDaysOf2000();
    EXPECT_EQ(Text("txtIntAmt"), c.interest);
    Calculate();
    EXPECT_EQ(session.statement.result->apy, c.apy);
    EXPECT_GE(CountInReport("Periodic_Statement_Report.html", "<TD>variable</TD>"), 1);
    EXPECT_TRUE(IsEnabled("cmdDetail"));
    Click("cmdAcct");
    InFront<StatementSetupWindow>();
    EXPECT_EQ(windows.Find<TierTableWindow>(), nullptr);
  }
}

TEST_F(TieredStatement, BackKeepsTheTableAndAChangedOneEndsTheDetail) {
  OpenTable("optTierB");
  TypeTable();
  OpenPeriod();
  ComputeTenDaysOf2000();
  Click("cmdBack");
  InFront<TierTableWindow>();
  EXPECT_EQ(Text("txtInt(2)"), "2");
  OpenPeriod();
  EXPECT_EQ(Text("txtIntAmt"), "0.82");
  EXPECT_NE(DetailOf(session.statement), nullptr);
  Click("cmdBack");
  InFront<TierTableWindow>();
  Type("txtInt(2)", "2.5");
  OpenPeriod();
  EXPECT_EQ(DetailOf(session.statement), nullptr) << "the days were computed by another table";
  EXPECT_EQ(Text("txtIntAmt"), "");
}

}  // namespace
}  // namespace corvane
