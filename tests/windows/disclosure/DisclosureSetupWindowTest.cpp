#include "windows/disclosure/DisclosureTest.h"

namespace corvane {
namespace {

class AccountSetupWindow : public DisclosureTest {};

TEST_F(AccountSetupWindow, EachCompoundingOptionShowsItsGroups) {
  const char* const all =
      "txtDailyCompounding lblDailyCompounding lblCompoundingNotes fraDaysInYear "
      "fraLeapYear fraRIWithdrawal fraAcctType";
  const struct {
    const char *option, *groups, *interval, *note;
  } cases[] = {
      {"optICNone", "fraDaysInYear fraLeapYear fraAcctType", "", ""},
      {"optICDays", all,
       "Number Of Days Between Compounding       :", "( e.g., 1 = Daily Compounding )"},
      {"optICMonths", all, "Number Of Months Between Compounding   :",
       "( e.g., 1 = Monthly   3 = Quarterly   6 = Semi-Annually )"},
      {"optICYears", "txtDailyCompounding lblDailyCompounding lblCompoundingNotes fraAcctType",
       "Number Of Years Between Compounding      :", "( e.g.,  1 = 365 Days )"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.option);
    Choose(c.option);
    for (const QString& group : QString(all).split(' ')) {
      EXPECT_EQ(IsShown(group), QString(c.groups).split(' ').contains(group))
          << group.toStdString();
    }
    EXPECT_TRUE(IsChosen("optRINotReq") && IsChosen("optDY365") && IsChosen("optLYNo"));
    if (!*c.interval) continue;
    EXPECT_EQ(Caption("lblDailyCompounding"), c.interval);
    EXPECT_EQ(Caption("lblCompoundingNotes"), c.note);
    EXPECT_EQ(Text("txtDailyCompounding"), "1");
  }
}

TEST_F(AccountSetupWindow, OptionsChangeOneAnother) {
  Enter("OptRIDays optDY366");
  EXPECT_TRUE(IsChosen("optLYYes"));
  Choose("optDY365");
  EXPECT_TRUE(IsChosen("optLYNo"));
  Choose("optICMonths");
  EXPECT_FALSE(IsEnabled("OptRIDays"));
  EXPECT_TRUE(IsChosen("optRINotReq"));
  Enter("optRIMonths optICDays");
  EXPECT_TRUE(IsEnabled("OptRIDays") && IsChosen("optRIMonths")) << "a choice is kept";
  Enter("optICNone optICDays");
  EXPECT_TRUE(IsChosen("optRINotReq"));
}

TEST_F(AccountSetupWindow, ContinueRefusesOrStoresWhatIsChosen) {
  Enter("txtDailyCompounding=32768");
  ExpectText("Please enter a valid compounding interval.");
  Click("cmdNext");
  EXPECT_EQ(Focus(), "txtDailyCompounding");
  EXPECT_EQ(Get<QLineEdit>("txtDailyCompounding")->selectedText().toStdString(), "32768");
  Type("txtDailyCompounding", "a3.x5.-b");
  EXPECT_EQ(Text("txtDailyCompounding"), "3.5-");
  Enter("optRIMonths optDY366 optLYNo");
  Expect({"Count 2/29 will be changed to Yes, No is not allowed for 366 days.", kKeyEntryError,
          MessageIcon::None});
  Continue();
  EXPECT_EQ(Text("txtDailyRateFactor"), "1/366");
  EXPECT_TRUE(IsShown("txtWdrwlPeriods"));
  GoTo<DisclosureSetupWindow>("cmdBack");
  EXPECT_EQ(Text("txtDailyCompounding"), "0") << "the interval was no number";
  EXPECT_TRUE(IsChosen("optLYYes"));
}

TEST_F(AccountSetupWindow, TheHeaderIsKeptAsTypedAndClearedByEachWay) {
  const auto header = [this] {
    return session.header.institution + "/" + session.header.description + "/" +
           session.header.holder;
  };
  Enter("txtName=Bank txtDepositInst=CD txtDepositorName=Holder");
  EXPECT_EQ(header(), "Bank/CD/Holder");
  Click("cmdNewAcct");
  EXPECT_EQ(header(), "Bank//") << "New Account keeps the institution";
  EXPECT_EQ(Focus(), "txtName");
  EXPECT_TRUE(IsChosen("optICNone") && IsChosen("optDY365"));
  EXPECT_EQ(Get<QLineEdit>("txtDailyCompounding")->text(), "");
  Type("txtDepositorName", "Holder");
  AccessKey(Qt::Key_M);
  InFront<MainMenu>();
  EXPECT_EQ(header(), "//");
  Start();
  EXPECT_EQ(Text("txtName") + Text("txtDepositorName"), "");
  EXPECT_TRUE(IsChosen("optICDays") && IsChosen("optRegNoDisc"));
}

}  // namespace
}  // namespace corvane
