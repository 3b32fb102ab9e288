#include <gtest/gtest.h>

#include "shell/SessionRecord.h"
#include "statement/StatementSetupStore.h"

namespace corvane {
namespace {

StatementSetup DaysSetup(const char* daysBetween) {
  StatementSetup setup;
  ChooseCompoundingDays(setup);
  setup.txtDCompounding.text = daysBetween;
  return setup;
}

StatementSetup FormulaSetup(const char* periodDays) {
  StatementSetup setup;
  ChooseCompoundingNone(setup);
  ChooseAdditionalFormula(setup, true);
  setup.txtDCPeriod.text = periodDays;
  return setup;
}

struct Case {
  StatementSetup setup;
  const char* message;  ///< empty when the setup passes
  const char* field;
};

TEST(StatementSetup, EachCheckRefusesWithItsMessageAndStoresNothing) {
  const char* between = "Please enter valid number of days between compounding.";
  const char* period = "Please enter valid number of days in compounding period.";
  const char* tooShort = "Compounding Period must be greater than 27 days";
  const char* tooLong = "Compounding Period must be no more that 365 days";
  const Case cases[] = {
      {DaysSetup(""), between, "txtDCompounding"},
      {DaysSetup(" "), between, "txtDCompounding"},
      {DaysSetup("x"), between, "txtDCompounding"},
      {DaysSetup("0"), between, "txtDCompounding"},
      {DaysSetup("1.5"), between, "txtDCompounding"},
      {DaysSetup("-1"), between, "txtDCompounding"},
      {DaysSetup("32768"), between, "txtDCompounding"},
      {DaysSetup("32767"), "", ""},
      {FormulaSetup(""), period, "txtDCPeriod"},
      {FormulaSetup("3O"), period, "txtDCPeriod"},
      {FormulaSetup("91.5"), period, "txtDCPeriod"},
      {FormulaSetup("27"), tooShort, "txtDCPeriod"},
      {FormulaSetup("-30"), tooShort, "txtDCPeriod"},
      {FormulaSetup("366"), tooLong, "txtDCPeriod"},
      {FormulaSetup("28"), "", ""},
      {FormulaSetup("365"), "", ""},
  };
  for (Case c : cases) {
    SessionRecord session;
    const auto outcome = ValidateAndStoreSetup(c.setup, session);
    const std::string input = c.setup.txtDCompounding.text + "/" + c.setup.txtDCPeriod.text;
    EXPECT_EQ(outcome.refusal ? outcome.refusal->text : "", c.message) << input;
    EXPECT_EQ(outcome.refusal ? outcome.refusal->field : "", c.field) << input;
    EXPECT_EQ(bool{session.AcctRegular}, !outcome.refusal) << input;
  }
}

TEST(StatementSetup, A366DayYearCountsTheLeapDayAfterANotice) {
  SessionRecord session;
  StatementSetup setup = DaysSetup("1");
  ChooseDaysInYear(setup, true);
  EXPECT_FALSE(ValidateAndStoreSetup(setup, session).notice) << "Yes was chosen with the 366";
  setup.opt229yes = false;
  setup.opt229no = true;
  const auto outcome = ValidateAndStoreSetup(setup, session);
  ASSERT_TRUE(outcome.notice);
  EXPECT_EQ(outcome.notice->text,
            "Count 2/29 will be changed to Yes, No is not allowed for 366 days.");
  EXPECT_EQ(outcome.notice->icon, MessageIcon::None);
  EXPECT_FALSE(outcome.refusal);
  EXPECT_TRUE(setup.opt229yes && !setup.opt229no);
  EXPECT_TRUE(session.CountLeapDay);
  EXPECT_EQ(session.DaysInYear, 366);
}

TEST(StatementSetup, ChoosingTheCompoundingOpensTheFieldsThatItNeeds) {
  StatementSetup setup = FormulaSetup("91");
  ChooseCompoundingDays(setup);
  EXPECT_EQ(setup.txtDCompounding.text, "1");
  EXPECT_TRUE(setup.txtDCompounding.enabled);
  EXPECT_FALSE(setup.fraAPYFormula || setup.txtDCPeriod.enabled || setup.optFormulaYes);
  ChooseCompoundingNone(setup);
  EXPECT_EQ(setup.txtDCompounding.text + setup.txtDCPeriod.text, "");
  EXPECT_FALSE(setup.txtDCompounding.enabled);
  EXPECT_TRUE(setup.fraAPYFormula);
  EXPECT_FALSE(setup.txtDCPeriod.enabled) << "until the formula is chosen";
}

TEST(StatementSetup, AChangedSetupEndsTheDetailAndAChangedYearTheFactor) {
  SessionRecord session;
  StatementSetup setup = DaysSetup("30");
  ValidateAndStoreSetup(setup, session);
  StoreCompoundingDays(setup, session);
  EXPECT_EQ(session.CompoundingDays, 30);
  session.DailyRateFactor = "1/366";
  session.DetailData = true;
  ValidateAndStoreSetup(setup, session);
  StoreCompoundingDays(setup, session);
  EXPECT_TRUE(session.DetailData) << "nothing changed";
  EXPECT_EQ(session.DailyRateFactor, "1/366");
  setup.optRegNoDisc = false;
  setup.optTierB = true;
  ValidateAndStoreSetup(setup, session);
  EXPECT_FALSE(session.DetailData);
  EXPECT_EQ(session.DailyRateFactor, "1/366");
  ChooseDaysInYear(setup, true);
  ValidateAndStoreSetup(setup, session);
  EXPECT_EQ(session.DailyRateFactor, "");
}

TEST(StatementSetup, WithoutCompoundingTheDaysBetweenAreZero) {
  SessionRecord session;
  session.CompoundMonths = true;
  session.CompoundingDays = 6;
  StatementSetup setup = LoadSetup(session);
  ValidateAndStoreSetup(setup, session);
  StoreCompoundingDays(setup, session);
  EXPECT_EQ(setup.txtDCompounding.text, "0");
  EXPECT_EQ(session.CompoundingDays, 0);
  EXPECT_TRUE(session.CompoundNone && !session.CompoundMonths && session.RoundNotTruncate);
}

}  // namespace
}  // namespace corvane
