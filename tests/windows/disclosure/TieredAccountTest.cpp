#include "windows/disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class TieredAccount : public DisclosureTest {
 protected:
  /// Goes on to the table, which then shows so many tiers and takes the entries.
  void OpenTable(const char* method, const char* tiers, const QString& entries = {}) {
    Choose(method);
    GoTo<TierTableWindow>("cmdNext");
    auto* list = Get<QComboBox>("cboTotalTiers");
    list->setFocus();
    QTest::keyClicks(list, tiers);
    EXPECT_EQ(list->currentText().toStdString(), tiers);
    Enter(entries);
  }

  void OpenEntry() { GoTo<DisclosureEntryWindow>("cmdCalculate"); }

  void NextTier(const char* balance, const char* disclosedApy) {
    if (IsEnabled("txtBal")) Type("txtBal", balance);
    Type("txtDiscAPY", disclosedApy);
    Click("cmdNext");
  }

  /// The regulation's tiers: 5.25 % up to $2,500, 5.50 % up to $15,000, 5.75 % above.
  const QString regulationTable_ =
      "txtInt(1)=5.25 txt_bne(1)=2500 txtInt(2)=5.5 txt_bne(2)=15000 txtInt(3)=5.75";
};

TEST_F(TieredAccount, MethodAComputesEveryTierOnItsOwnBalance) {
  OpenTable("optTierA", "3", regulationTable_);
  OpenEntry();
  EXPECT_EQ(Caption("lblPeriodNumber"), "Tier No. 1");
  EXPECT_EQ(Text("txtTierPerNum"), "3");
  EXPECT_FALSE(IsEnabled("txtIntRateA"));
  Enter("tStartDate=01-01-2023 tEndDate=01-01-2024");
  ExpectText("Please enter a valid Principal Balance Amount");
  NextTier("", "5.39");
  EXPECT_EQ(Focus(), "txtBal");
  NextTier("1000", "5.39");
  EXPECT_EQ(Caption("lblPeriodNumber"), "Tier No. 2");
  EXPECT_EQ(Shown("txtTerm txtBal txtDiscAPY"), "txtTerm=365 txtBal= txtDiscAPY=");
  NextTier("8000", "5.65");
  EXPECT_EQ(Text("txtIntRateA"), "5.75");
  NextTier("20000", "5.98");
  InFront<DisclosureResultsWindow>();
  EXPECT_EQ(Column(ReportCell::ComputedApy), "5.39% 5.65% 5.92%");
  EXPECT_EQ(Column(ReportCell::Verdict), "OK OK APY VIOLATION");
  EXPECT_EQ(Column(ReportCell::Interest), "$53.90 $452.29 $1,183.61");
  EXPECT_EQ(ReportRowCount(), 3);
  GoTo<DisclosureEntryWindow>("cmdBack");
  EXPECT_EQ(Text("txtBal"), "20000.00");
  NextTier("20000", "5.92");
  InFront<DisclosureResultsWindow>();
  EXPECT_EQ(Column(ReportCell::Verdict), "OK OK OK");
}

TEST_F(TieredAccount, MethodBVerifiesBothEndsOfEveryTier) {
  const struct {
    const char *end, *balance, *disclosed;
  } entries[] = {{"  Low/High", "2500.00", "5.39"},
                 {"   Low End", "2500.01", "5.39"},
                 {"  High End", "15000.00", "5.61"},
                 {"   Low End", "15000.01", "5.61"},
                 {"  High End", "", "5.87"}};
  OpenTable("optTierB", "3", regulationTable_);
  OpenEntry();
  Type("txtTerm", "365");
  for (const auto& entry : entries) {
    EXPECT_EQ(Caption("lblHighLowEnd"), entry.end);
    EXPECT_EQ(Text("txtBal"), entry.balance);
    EXPECT_EQ(IsEnabled("txtBal"), !*entry.balance);
    EXPECT_EQ(IsEnabled("txtTerm"), &entry == entries) << "typed once for all";
    if (!*entry.balance) ExpectText("Please enter Balance for Tier to proceed");
    NextTier("15000", entry.disclosed);
  }
  NextTier("100000", "5.87");
  InFront<DisclosureResultsWindow>();
  EXPECT_EQ(Column(ReportCell::ComputedApy), "5.39% 5.39% 5.61% 5.61% 5.87%");
  EXPECT_EQ(Column(ReportCell::Verdict), "OK OK OK OK OK");
  EXPECT_EQ(Column(ReportCell::Number), "1 2 2 3 3");
  EXPECT_EQ(Column(ReportCell::Rate), "5.25% 5.25/5.5% 5.25/5.5% 5.25/5.5/5.75% 5.25/5.5/5.75%");
  EXPECT_EQ(Column(ReportCell::Balance), "$2,500.00 $2,500.01 $15,000.00 $15,000.01 $100,000.00");
  EXPECT_EQ(ReportRowCount(), 5);
}

TEST_F(TieredAccount, TheTableRefusesWhatTheTiersCannotUse) {
  const char* noRate = "Please input Interest Rate";
  const char* badRate = "Please enter integers and no decimals for Interest Rate.";
  const struct {
    const char *box, *text, *message, *field, *left;
  } steps[] = {
      {"txt_bne(1)", "0", "Please input Interest Rate.", "txtInt(1)", ""},
      {"txtInt(1)", "-5", badRate, "txtInt(1)", ""},
      {"txtInt(1)", "5", "Please enter deposit balance for Tier 1", "txt_bne(1)", ""},
      {"txt_bne(1)", "1000", noRate, "txtInt(2)", ""},
      {"txtInt(2)", "-", badRate, "txtInt(2)", ""},
      {"txtInt(2)", "5.5", noRate, "txtInt(3)", ""},
      {"txtInt(3)", "6", "Please input deposit balance for upto not exceeding tier 3.",
       "txt_bne(2)", ""},
      {"txt_bne(2)", "-",
       "Please enter integers for deposit balance for upto not exceeding tier 3.", "txt_bne(2)",
       ""},
      {"txt_bne(2)", "1000", "Each succeeding number must be larger than the previous",
       "txt_bne(2)", "1000.00"},
      {"txt_bne(2)", "2000", noRate, "txtInt(4)", ""},
  };
  OpenTable("optTierA", "4");
  for (const auto& step : steps) {
    Type(step.box, step.text);
    ExpectText(step.message);
    Click("cmdCalculate");
    EXPECT_EQ(Focus(), step.field) << step.message;
    EXPECT_EQ(Text(step.field), step.left) << step.message;
  }
  EXPECT_EQ(Text("TxtAbove(3)"), "2000.00");
  ExpectText("Please input Interest Rate for Tier 2");
  Type("txtInt(2)", "");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "txtInt(2)");
  Keys("6");
}

TEST_F(TieredAccount, TheEntriesLastAsLongAsTheirTableAndTheTableAsTheAccount) {
  OpenTable("optTierA", "2", "txtInt(1)=4.1265 txt_bne(1)=2500 txtInt(2)=5");
  EXPECT_FALSE(IsShown("txt_bne(2)"));
  OpenEntry();
  Enter("txtBal=1000 txtDiscAPY=4.2 txtTerm=365");
  GoTo<TierTableWindow>("cmdBack");
  OpenEntry();
  EXPECT_EQ(Shown("txtBal txtIntRateA"), "txtBal=1000.00 txtIntRateA=4.1265");
  GoTo<TierTableWindow>("cmdBack");
  Type("txtInt(2)", "5.1");
  OpenEntry();
  EXPECT_EQ(Text("txtBal"), "");
  GoTo<DisclosureSetupWindow>("cmdAcctInfo");
  GoTo<TierTableWindow>("cmdNext");
  EXPECT_EQ(Get<QComboBox>("cboTotalTiers")->currentIndex(), -1);
  EXPECT_FALSE(IsEnabled("cmdCalculate"));
  GoTo<MainMenu>("cmdExit");
  EXPECT_EQ(windows.Find<TierTableWindow>(), nullptr);
}

}  // namespace
}  // namespace corvane
