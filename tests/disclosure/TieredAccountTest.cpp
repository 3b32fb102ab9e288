#include "disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class TieredAccount : public DisclosureTest {
 protected:
  void OpenTable(const char* method, int tiers) {
    Choose(method);
    Click("cmdNext");
    InFront<frmAcctTieredAB>();
    ChooseTiers(tiers);
  }

  void ChooseTiers(int tiers) {
    auto* list = Get<QComboBox>("cboTotalTiers");
    list->setFocus();
    QTest::keyClicks(list, tiers == 10 ? "1" : QString::number(tiers));
    EXPECT_EQ(list->currentText().toInt(), tiers);
  }

  /// The regulation's tiers: 5.25 % up to $2,500, 5.50 % up to $15,000, 5.75 % above.
  void TypeRegulationTable() {
    Enter("txtInt(1)=5.25 txt_bne(1)=2500 txtInt(2)=5.5 txt_bne(2)=15000 txtInt(3)=5.75");
  }

  void OpenEntry() {
    Click("cmdCalculate");
    InFront<frmAcctRegularStepped>();
  }

  void NextTier(const char* balance, const char* disclosedApy) {
    if (IsEnabled("txtBal")) Type("txtBal", balance);
    Type("txtDiscAPY", disclosedApy);
    Click("cmdNext");
  }
};

TEST_F(TieredAccount, MethodAComputesEveryTierOnItsOwnBalance) {
  OpenTable("optTierA", 3);
  TypeRegulationTable();
  OpenEntry();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Tier No. 1");
  EXPECT_EQ(Text("txtTierPerNum"), "3");
  EXPECT_FALSE(IsEnabled("txtIntRateA"));
  Type("txtTerm", "365");
  ExpectText("Please enter a valid Principal Balance Amount");
  NextTier("", "5.39");
  EXPECT_EQ(Focus(), "txtBal");
  NextTier("1000", "5.39");
  EXPECT_EQ(Caption("lblPeriodNumber"), "Tier No. 2");
  EXPECT_EQ(Text("txtTerm"), "365");
  EXPECT_EQ(Text("txtBal"), "");
  NextTier("8000", "5.65");
  EXPECT_EQ(Text("txtIntRateA"), "5.75");
  NextTier("20000", "5.98");
  InFront<frmDisplayResultsweb>();
  EXPECT_EQ(Column(session.RptComputedApy), "5.39% 5.65% 5.92%");
  EXPECT_EQ(Column(session.RptVerdict), "OK OK APY VIOLATION");
  EXPECT_EQ(Column(session.RptInterest), "$53.90 $452.29 $1,183.61");
  EXPECT_EQ(ReportRowCount(), 3);
  Click("cmdBack");
  InFront<frmAcctRegularStepped>();
  EXPECT_EQ(Text("txtBal"), "20000.00");
  NextTier("20000", "5.92");
  InFront<frmDisplayResultsweb>();
  EXPECT_EQ(Column(session.RptVerdict), "OK OK OK");
}

TEST_F(TieredAccount, MethodBVerifiesBothEndsOfEveryTier) {
  OpenTable("optTierB", 3);
  TypeRegulationTable();
  OpenEntry();
  const char* const ends[] = {"  Low/High", "   Low End", "  High End", "   Low End", "  High End"};
  const char* const balances[] = {"2500.00", "2500.01", "15000.00", "15000.01", ""};
  const char* const disclosed[] = {"5.39", "5.39", "5.61", "5.61", "5.87"};
  Type("txtTerm", "365");
  for (int entry = 0; entry < 4; ++entry) {
    EXPECT_EQ(Caption("lblHighLowEnd"), ends[entry]);
    EXPECT_EQ(Text("txtBal"), balances[entry]);
    EXPECT_FALSE(IsEnabled("txtBal"));
    EXPECT_EQ(IsEnabled("txtTerm"), entry == 0) << "typed once for all";
    NextTier("", disclosed[entry]);
  }
  EXPECT_EQ(Caption("lblHighLowEnd"), ends[4]);
  ExpectText("Please enter Balance for Tier to proceed");
  NextTier("15000", "5.87");
  NextTier("100000", "5.87");
  InFront<frmDisplayResultsweb>();
  EXPECT_EQ(Column(session.RptComputedApy), "5.39% 5.39% 5.61% 5.61% 5.87%");
  EXPECT_EQ(Column(session.RptVerdict), "OK OK OK OK OK");
  EXPECT_EQ(Column(session.RptLineNo), "1 2 2 3 3");
  EXPECT_EQ(session.RptRate.At(5), "5.25/5.5/5.75%");
  EXPECT_EQ(session.RptBalance.At(5), "$100,000.00");
  EXPECT_EQ(ReportRowCount(), 5);
}

TEST_F(TieredAccount, TenTiersByMethodBHaveNineteenRows) {
  OpenTable("optTierB", 10);
  for (int tier = 1; tier <= 10; ++tier) {
    Type(QString("txtInt(%1)").arg(tier), QString::number(tier));
    if (tier < 10) Type(QString("txt_bne(%1)").arg(tier), QString::number(1000 * tier));
  }
  OpenEntry();
  Type("txtTerm", "365");
  for (int entry = 1; entry <= 19; ++entry) NextTier("20000", "5");
  InFront<frmDisplayResultsweb>();
  EXPECT_EQ(ReportRowCount(), 19);
  EXPECT_EQ(session.RptLineNo.At(19), "10");
}

TEST_F(TieredAccount, TheTableRefusesWhatTheTiersCannotUse) {
  struct Step {
    const char* box;
    const char* text;
    const char* message;
    const char* field;
    const char* left;
  };
  OpenTable("optTierA", 4);
  const Step steps[] = {
      {"txt_bne(1)", "0", "Please input Interest Rate.", "txtInt(1)", ""},
      {"txtInt(1)", "-", "Please enter integers and no decimals for Interest Rate.", "txtInt(1)",
       ""},
      {"txtInt(1)", "5", "Please enter deposit balance for Tier 1", "txt_bne(1)", ""},
      {"txt_bne(1)", "1000", "Please input Interest Rate", "txtInt(2)", ""},
      {"txtInt(2)", "-", "Please enter integers and no decimals for Interest Rate.", "txtInt(2)",
       ""},
      {"txtInt(2)", "5.5", "Please input Interest Rate", "txtInt(3)", ""},
      {"txtInt(3)", "6", "Please input deposit balance for upto not exceeding tier 3.",
       "txt_bne(2)", ""},
      {"txt_bne(2)", "-",
       "Please enter integers for deposit balance for upto not exceeding tier 3.", "txt_bne(2)",
       ""},
      {"txt_bne(2)", "1000", "Each succeeding number must be larger than the previous",
       "txt_bne(2)", "1000.00"},
      {"txt_bne(2)", "2000", "Please input Interest Rate", "txtInt(4)", ""},
      {"txtInt(4)", "7", "Please input deposit balance for upto not exceeding tier 4.",
       "txt_bne(3)", ""},
  };
  for (const Step& step : steps) {
    Type(step.box, step.text);
    ExpectText(step.message);
    Click("cmdCalculate");
    EXPECT_EQ(Focus(), step.field) << step.message;
    EXPECT_EQ(Text(step.field), step.left) << step.message;
  }
  EXPECT_EQ(Text("TxtAbove(3)"), "2000.00");
  ExpectText("Please input Interest Rate for Tier 2");
  Type("txtInt(2)", "");
  EXPECT_EQ(Focus(), "txtInt(2)");
}

TEST_F(TieredAccount, AChangedTableVoidsTheEntriesAndAnUnchangedOneKeepsThem) {
  OpenTable("optTierA", 2);
  EXPECT_FALSE(IsShown("txt_bne(2)"));
  Enter("txtInt(1)=4.1265 txt_bne(1)=2500 txtInt(2)=5");
  OpenEntry();
  Enter("txtBal=1000 txtDiscAPY=4.2 txtTerm=365");
  Click("cmdBack");
  InFront<frmAcctTieredAB>();
  OpenEntry();
  EXPECT_EQ(Text("txtBal"), "1000.00");
  EXPECT_EQ(Text("txtIntRateA"), "4.1265");
  Click("cmdBack");
  InFront<frmAcctTieredAB>();
  Type("txtInt(2)", "5.1");
  OpenEntry();
  EXPECT_EQ(Text("txtBal"), "");
}

TEST_F(TieredAccount, NewAccountAndMainMenuForgetTheTable) {
  OpenTable("optTierB", 2);
  Enter("txtInt(1)=5 txt_bne(1)=2500 txtInt(2)=6");
  OpenEntry();
  Click("cmdAcctInfo");
  InFront<frmAcctAdvertAPY>();
  EXPECT_EQ(session.TierRate.At(1), 0);
  Click("cmdNext");
  InFront<frmAcctTieredAB>();
  EXPECT_EQ(Get<QComboBox>("cboTotalTiers")->currentIndex(), -1);
  EXPECT_FALSE(IsEnabled("cmdCalculate"));
  Click("cmdExit");
  InFront<frmMain>();
  EXPECT_EQ(windows.Find<frmAcctTieredAB>(), nullptr);
}

}  // namespace
}  // namespace corvane
