#include <gtest/gtest.h>

#include "statement/EntryExamples.h"

namespace corvane {
namespace {

TEST(StatementSetup, EachCheckRefusesWithItsMessageAndTakesNothingOver) {
  const char* between = "Please enter valid number of days between compounding.";
  const char* period = "Please enter valid number of days in compounding period.";
  const char* tooShort = "Compounding Period must be greater than 27 days";
  const char* tooLong = "Compounding Period must be no more that 365 days";
  const struct {
    bool formula;      ///< else compounding every so many days
    const char* days;  ///< of the compounding period, or between compounding
    const char* message;
  } cases[] = {
      {false, "x", between},     {false, "0", between},  {false, "1.5", between},
      {false, "32768", between}, {false, "32767", ""},   {true, "", period},
      {true, "91.5", period},    {true, "27", tooShort}, {true, "-30", tooShort},
      {true, "28", ""},          {true, "366", tooLong}, {true, "365", ""},
  };
  for (const auto& c : cases) {
    StatementCheck check;
    StatementSetup choices = c.formula ? StatementSetup{} : StatementSetupAtStart();
    choices.kind = AccountKind::Stepped;
    ChooseAdditionalFormula(choices, c.formula);
    (c.formula ? choices.txtDCPeriod : choices.txtDCompounding).text = c.days;
    const auto refusal = ContinueSetup(check, choices).refusal;
    const std::string field = c.formula ? " @ txtDCPeriod" : " @ txtDCompounding";
    EXPECT_EQ(Told(refusal), *c.message ? c.message + field : "") << c.days;
    EXPECT_EQ(check.setup.kind == AccountKind::Stepped, !refusal) << c.days;
  }
}

TEST(StatementSetup, A366DayYearCountsTheLeapDayAfterANotice) {
  StatementCheck check;
  StatementSetup choices;
  ChooseYearDays(choices, 366);
  EXPECT_FALSE(ContinueSetup(check, choices).notice) << "Yes was chosen with the 366";
  choices.year.countsLeapDay = false;
  EXPECT_TRUE(ContinueSetup(check, choices).notice);
  EXPECT_TRUE(choices.year.countsLeapDay && check.setup.year.countsLeapDay);
}

TEST(StatementSetup, AnotherCompoundingEndsTheFormula) {
  StatementSetup setup;
  ChooseAdditionalFormula(setup, true);
  setup.txtDCPeriod.text = "91";
  ChooseYearDays(setup, 366);
  ChooseCompounding(setup, Unit::Days);
  EXPECT_EQ(setup.txtDCompounding, (Field{"1", true}));
  EXPECT_EQ(setup.txtDCPeriod, (Field{"", false}));
  EXPECT_FALSE(setup.additionalFormula || setup.OffersAdditionalFormula());
  EXPECT_TRUE(setup.leapDayOpen && setup.year.days == 365);
}

TEST(StatementSetup, ThePeriodOpensWithTheRateFactorAndMethodOfTheSetup) {
  EntryExample example;
  example.entry.txtDRFactor.text = "1/360";
  StatementSetup choices;
  const auto present = [&] {
    ContinueSetup(example, choices);
    example.entry = PresentEntry(example.setup, example.entry);
    return example.entry.txtIntRate.text + " " + example.entry.txtDRFactor.text;
  };
  EXPECT_EQ(present(), "1.5 1/360");
  EXPECT_EQ(choices.txtDCompounding.text, "0") << "no days between compoundings";
  choices.kind = AccountKind::TierB;
  EXPECT_EQ(present(), " 1/360");
  ChooseYearDays(choices, 366);
  EXPECT_EQ(present(), " 1/366");
  example.Minimums("0", "50");
  present();
  EXPECT_TRUE(example.entry.UsesAdb()) << "a minimum selects its method only as it is checked";
  choices.kind = AccountKind::Stepped;
  present();
  EXPECT_EQ(example.entry.method, BalanceMethod::DailyBalance);
}

}  // namespace
}  // namespace corvane
