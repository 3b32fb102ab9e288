#include <gtest/gtest.h>

#include "statement/BalanceBasis.h"
#include "statement/EntryExamples.h"
#include "statement/EntryValidation.h"
#include "statement/InterestMethod.h"
#include "statement/MinimumBalanceRules.h"
#include "statement/PeriodicRateFactor.h"
#include "statement/StatementPeriod.h"
#include "support/Clock.h"

namespace corvane {
namespace {

const std::string kMinimumsNotValid =
    "Values entered for Minimum ADB and Minimum Daily Balance \n"
    "        are not valid for the selected Statement Type and \n"
    "                            Interest Calculation Method @ txtMinADB";
const std::string kDaysRange = "The valid Ledger Days range is 1 to 96, inclusive";

TEST(EntryChecks, RefuseInTheirOrderWhatTheFormulasCannotTake) {
  struct Row {
    StatementField StatementEntry::*field;
    std::vector<const char*> refused;
    const char* passed;
    std::string told;
  };
  using Entry = StatementEntry;
  const Row rows[] = {
      {&Entry::txtMinADB,
       {"", "x", "-0.01", "1,000"},
       "0",
       "Please enter a valid Minimum ADB amount or Zero @ txtMinADB"},
      {&Entry::txtMinDBal,
       {""},
       "0.00",
       "Please enter a valid Minimum daily balance or Zero @ txtMinDBal"},
      {&Entry::txtDClApy,
       {"", "0.00", "2%"},
       "0.01",
       "Please enter a valid Disclosed APY percentage @ txtDClApy"},
      {&Entry::txtIntRate, {"", "0"}, "0.0001", "Please enter a valid Interest Rate @ txtIntRate"},
      {&Entry::txtDRFactor,
       {"", "365", "1/", "2/365", "1/0", "1/367"},
       " 1/366 ",
       "Please enter a valid Daily Rate Factor @ txtDRFactor"},
      {&Entry::txtLedgerdays, {"", "0", "97", "30.5"}, "96", kDaysRange + " @ txtLedgerdays"},
      {&Entry::txtColDays, {"0"}, "1", kDaysRange + " @ txtColDays"},
  };
  StatementEntry entry;  // everything is wrong; each row mends its field in the end
  entry.txtColDays.enabled = true;
  for (const Row& row : rows) {
    for (const char* text : row.refused) {
      (entry.*row.field).text = text;
      EXPECT_EQ(Told(ValidateEntries(entry)), row.told) << "'" << text << "'";
    }
    (entry.*row.field).text = row.passed;
    if (row.field == &Entry::txtDRFactor) {
      EXPECT_EQ(Told(ValidateEntries(entry)),
                "Choose one of the types of the Interest Calculation. @ optDailyBal");
      entry.optADB = true;
    }
  }
  EXPECT_EQ(Told(ValidateEntries(entry)), "");
}

enum Kind { Regular, Formula, Stepped, SteppedFormula };

struct MinimumCase {
  Kind kind;
  bool adb;  ///< else daily balance
  const char *minimumAdb, *minimumDaily;
  std::string notice, refusal;
};

TEST(EntryChecks, MinimumBalancesSuitTheAccountAndTheMethod) {
  const std::string onlyDaily =
      "Daily Balance Method is the only valid method for Variable rate accounts  @ optDailyBal";
  const MinimumCase cases[] = {
      {Regular, false, "100", "50", kMinimumsNotValid, ""},
      {Regular, true, "100", "0", "", ""},
      {Regular, true, "0", "50", "", kMinimumsNotValid},
      {Regular, false, "100", "0", "", ""},
      {Formula, false, "100", "0", "", kMinimumsNotValid},
      {Stepped, false, "100", "0", "", kMinimumsNotValid},
      {SteppedFormula, false, "100", "0", "", ""},
      {Stepped, true, "100", "50", kMinimumsNotValid, onlyDaily},
  };
  for (const MinimumCase& c : cases) {
    EntryExample example;
    if (c.kind >= Stepped) example.Stepped();
    example.session.AdditionalApy = c.kind == Formula || c.kind == SteppedFormula;
    ChooseMethod(example.session, example.entry, c.adb);
    example.Minimums(c.minimumAdb, c.minimumDaily);
    const CheckOutcome outcome = Check_For_Errors(example.session, example.entry);
    SCOPED_TRACE(testing::Message() << "kind " << c.kind << (c.adb ? ", ADB " : ", daily ")
                                    << c.minimumAdb << " " << c.minimumDaily);
    EXPECT_EQ(Told(outcome.notice), c.notice);
    EXPECT_EQ(Told(outcome.refusal), c.refusal);
  }
}

TEST(EntryChecks, TheMethodFollowsASingleMinimumUnlessTheAccountLocksIt) {
  EntryExample example;
  auto& [session, entry] = example;
  const auto code = [&](const char* adb, const char* daily, MethodChoice choice) {
    example.Minimums(adb, daily);
    Set_Interest(session, entry, choice);
    return session.BalanceMethodCode;
  };
  ChooseMethod(session, entry, false);
  EXPECT_EQ(code("100", "50", MethodChoice::FollowMinimum), 2);
  EXPECT_EQ(code("100", "0", MethodChoice::Keep), 1);
  EXPECT_TRUE(entry.optDailyBal) << "only shown so far";
  EXPECT_EQ(code("100", "0", MethodChoice::FollowMinimum), 1);
  EXPECT_TRUE(entry.optADB && session.UseAdb && !session.UseDailyBal);
  session.AdditionalApy = true;
  EXPECT_EQ(code("100", "0", MethodChoice::FollowMinimum), 2);
  EXPECT_TRUE(entry.optDailyBal && !entry.fraIntCalcMethod);
  session.AdditionalApy = false;
  EXPECT_EQ(code("0", "0", MethodChoice::Keep), 2);
  EXPECT_TRUE(entry.fraIntCalcMethod) << "nothing locks it any more";
}

struct PeriodCase {
  const char *start, *end;
  bool countLeapDay;
  PeriodCaller caller;
  std::string expected;  ///< the days, or the refusal
};

TEST(EntryChecks, TheDatesGiveTheDaysOfThePeriod) {
  using enum PeriodCaller;
  const std::string length =
      "Number of valid days must be between 1 and 96, Please adjust @ txtDateStart";
  const PeriodCase cases[] = {
      {"02-01-2024", "03-01-2024", false, Button, "28"},
      {"01-01-2024", "04-06-2024", true, Button, "96"},
      {"01-01-2024", "04-07-2024", true, Calendar, length},
      {"01-01-2024", "01-01-2024", true, Button, length},
      {"01-02-2024", "01-01-2024", true, DaysField,
       "Number of days may not exceed 96, Please adjust @ txtDateStart"},
      {"__-__-____", "01-31-2024", true, Button,
       "Starting Date is invalid, Please correct @ txtDateStart"},
      {"01-01-2024", "02-30-2024", true, Calendar,
       "Ending Date is invalid, Please correct @ txtDateEnd"},
      {"01-01-2024", "1_-31-2024", true, DaysField,
       "Ending Date Date is invalid, Please correct @ txtDateEnd"},
  };
  for (const PeriodCase& c : cases) {
    SCOPED_TRACE(std::string(c.start) + " to " + c.end);
    EntryExample example;
    auto& [session, entry] = example;
    session.CountLeapDay = c.countLeapDay;
    entry.txtDateStart.text = c.start;
    entry.txtDateEnd.text = c.end;
    entry.txtLedgerdays.text = "0";
    entry.txtColDays = {.text = " 0 ", .enabled = true};
    const auto refusal = CheckStatementPeriod(session, entry, c.caller);
    EXPECT_EQ(refusal ? Told(refusal) : entry.txtLedgerdays.text, c.expected);
    EXPECT_EQ(entry.txtColDays.text, refusal ? " 0 " : c.expected);
    const bool tooLong = refusal && refusal->text.starts_with("Number");
    EXPECT_EQ(entry.txtDateStart.text, tooLong ? kEmptyDateMask : c.start);
  }
}

TEST(EntryChecks, AnEmptyDaysFieldIsTheCalendarsAndAnEmptyStartToday) {
  EntryExample example;
  auto& [session, entry] = example;
  SetToday(ParseDate("05-06-2025"));
  StorePeriodStart(session, entry);
  SetToday(std::nullopt);
  EXPECT_EQ(session.CurrentDay, SerialOf(*ParseDate("05-06-2025")));
  EXPECT_EQ(Told(CheckStatementPeriod(session, entry, PeriodCaller::Calendar)), "")
      << "typed days stay";
  entry.txtDateStart.text = "01-01-2024";
  EXPECT_TRUE(!DatesForCalendar(entry).start && DatesForCalendar(entry).end);
  entry.txtDateEnd.text = "01-31-2024";
  EXPECT_TRUE(DatesForCalendar(entry).start && DatesForCalendar(entry).end);
  entry.txtLedgerdays.text = "";
  CheckStatementPeriod(session, entry, PeriodCaller::Button);
  EXPECT_EQ(entry.txtLedgerdays.text, "");
  CheckStatementPeriod(session, entry, PeriodCaller::Calendar);
  EXPECT_EQ(entry.txtLedgerdays.text, "30");
}

TEST(EntryChecks, TheFactorIsReadOnceItCanBeWhole) {
  EntryExample example;
  auto& [session, entry] = example;
  entry.txtDRFactor.text = "1/366";
  EXPECT_EQ(Told(FactorChanged(session, entry)), "");
  EXPECT_EQ(session.DaysInYear, 366);
  for (const auto& [text, told] :
       {std::pair{"1365", ""},
        {"13/65", "Please enter the valid Daily Rate factor @ txtDRFactor"}}) {
    entry.txtDRFactor.text = text;
    EXPECT_EQ(Told(FactorChanged(session, entry)), told);
  }
}

TEST(EntryChecks, TheBasisOpensTheColumnsAsItIsClicked) {
  struct Click {
    void (*choose)(SessionRecord&, StatementEntry&, bool);
    bool yes;
    int basis;
    bool ledger, collectedDays, collectedAdb;
  };
  const Click clicks[] = {{ChooseLedgerEqualsCollected, false, 2, true, false, true},
                          {ChooseLedgerAdb, false, 3, false, true, true},
                          {ChooseLedgerAdb, true, 2, true, true, true},
                          {ChooseLedgerEqualsCollected, true, 1, true, false, false}};
  EntryExample example;
  auto& [session, entry] = example;
  for (const Click& click : clicks) {
    session.DetailData = true;
    entry.txtLedgerdays.text = "30";
    click.choose(session, entry, click.yes);
    EXPECT_EQ(session.BalanceBasisCode, click.basis);
    EXPECT_EQ(entry.txtLedgerdays.enabled, click.ledger) << click.basis;
    EXPECT_EQ(entry.txtColDays.enabled, click.collectedDays) << click.basis;
    EXPECT_EQ(entry.txtADBCollectedBalance.enabled, click.collectedAdb) << click.basis;
    EXPECT_EQ(entry.txtLedgerdays.text, "");
    EXPECT_FALSE(session.DetailData);
  }
}

}  // namespace
}  // namespace corvane
