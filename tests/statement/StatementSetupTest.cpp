#include <gtest/gtest.h>

#include "statement/EntryExamples.h"
#include "statement/StatementSetupStore.h"

namespace corvane {
namespace {

struct Case {
  bool formula;      ///< else compounding every so many days
  const char* days;  ///< of the compounding period, or between compounding
  const char* message;
};

TEST(StatementSetup, EachCheckRefusesWithItsMessageAndStoresNothing) {
  const char* between = "Please enter valid number of days between compounding.";
  const char* period = "Please enter valid number of days in compounding period.";
  const char* tooShort = "Compounding Period must be greater than 27 days";
  const char* tooLong = "Compounding Period must be no more that 365 days";
  const Case cases[] = {
      {false, "x", between},     {false, "0", between},  {false, "1.5", between},
      {false, "32768", between}, {false, "32767", ""},   {true, "", period},
      {true, "91.5", period},    {true, "27", tooShort}, {true, "-30", tooShort},
      {true, "28", ""},          {true, "366", tooLong}, {true, "365", ""},
  };
  for (const Case& c : cases) {
    SessionRecord session;
    StatementSetup setup;
    if (!c.formula) ChooseCompoundingDays(setup);
    ChooseAdditionalFormula(setup, c.formula);
    (c.formula ? setup.txtDCPeriod : setup.txtDCompounding).text = c.days;
    const auto refusal = ValidateAndStoreSetup(setup, session).refusal;
    EXPECT_EQ(refusal ? refusal->text : "", c.message) << c.days;
    const char* field = c.formula ? "txtDCPeriod" : "txtDCompounding";
    EXPECT_EQ(refusal ? refusal->field : field, field) << c.days;
    EXPECT_EQ(bool{session.AcctRegular}, !refusal) << c.days;
  }
}

TEST(StatementSetup, A366DayYearCountsTheLeapDayAfterANotice) {
  SessionRecord session;
  StatementSetup setup;
  ChooseDaysInYear(setup, true);
  EXPECT_FALSE(ValidateAndStoreSetup(setup, session).notice) << "Yes was chosen with the 366";
  setup.opt229yes = false;
  setup.opt229no = true;
  EXPECT_TRUE(ValidateAndStoreSetup(setup, session).notice);
  EXPECT_TRUE(setup.opt229yes && !setup.opt229no);
  EXPECT_TRUE(session.CountLeapDay && session.DaysInYear == 366);
}

TEST(StatementSetup, AnotherCompoundingEndsTheFormula) {
  StatementSetup setup;
  ChooseAdditionalFormula(setup, true);
  setup.txtDCPeriod.text = "91";
  ChooseCompoundingDays(setup);
  EXPECT_TRUE(setup.txtDCompounding.enabled);
  EXPECT_FALSE(setup.fraAPYFormula || setup.txtDCPeriod.enabled || setup.optFormulaYes);
}

TEST(StatementSetup, AChangedSetupEndsTheDetailAndAChangedYearTheFactor) {
  EntryExample example;
  auto& [session, entry] = example;
  StatementSetup setup;
  const auto store = [&, &session = session, &entry = entry] {
    session.DailyRateFactor = "1/360";
    session.DetailData = true;
    ValidateAndStoreSetup(setup, session);
    InitStatementEntry(session, entry, false);
    return (session.DetailData ? "detail " : "") + session.DailyRateFactor;
  };
  entry.txtDRFactor.text = "1/360";
  EXPECT_EQ(store(), "detail 1/360");
  setup.optRegNoDisc = false;
  setup.optTierB = true;
  EXPECT_EQ(store(), "1/360");
  ChooseDaysInYear(setup, true);
  EXPECT_EQ(store(), "1/366");
}

}  // namespace
}  // namespace corvane
