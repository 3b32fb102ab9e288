#include <gtest/gtest.h>

#include <functional>

#include "platform/Clock.h"
#include "statement/BalanceBasis.h"
#include "statement/EntryExamples.h"
#include "statement/EntryValidation.h"
#include "statement/InterestMethod.h"
#include "statement/MinimumBalanceRules.h"
#include "statement/PeriodicRateFactor.h"
#include "statement/StatementPeriod.h"

namespace corvane {
namespace {

const std::string kMinimumsNotValid =
    "Values entered for Minimum ADB and Minimum Daily Balance \n"
    "        are not valid for the selected Statement Type and \n"
    "                            Interest Calculation Method @ txtMinADB";
const std::string kDaysRange = "The valid Ledger Days range is 1 to 96, inclusive";

TEST(EntryChecks, ComeInTheirOrder) {
  using Entry = StatementEntry;
  StatementEntry entry;  // everything is wrong; each row mends what the row before reported
  entry.txtColDays.enabled = true;
  const std::pair<std::function<void(Entry&)>, std::string> rows[] = {
      {[](Entry&) {}, "Please enter a valid Minimum ADB amount or Zero @ txtMinADB"},
      {[](Entry& e) { e.txtMinADB.text = "0"; },
       "Please enter a valid Minimum daily balance or Zero @ txtMinDBal"},
      {[](Entry& e) { e.txtMinDBal.text = "0.00"; },
       "Please enter a valid Disclosed APY percentage @ txtDClApy"},
      {[](Entry& e) { e.txtDClApy.text = "0.01"; },
       "Please enter a valid Interest Rate @ txtIntRate"},
      {[](Entry& e) { e.txtIntRate.enabled = false; },
       "Please enter a valid Daily Rate Factor @ txtDRFactor"},
      {[](Entry& e) { e.txtDRFactor.text = "1/366"; },
       "Choose one of the types of the Interest Calculation. @ optDailyBal"},
      {[](Entry& e) { e.optDailyBal = true; }, kDaysRange + " @ txtLedgerdays"},
      {[](Entry& e) { e.txtLedgerdays.text = "96"; }, kDaysRange + " @ txtColDays"},
      {[](Entry& e) { e.txtColDays.text = "1"; }, ""},
  };
  for (const auto& [mend, told] : rows) {
    mend(entry);
    EXPECT_EQ(Told(ValidateEntries(entry)), told);
  }
}

TEST(EntryChecks, RefuseWhatTheFormulasCannotTake) {
  using Field = StatementField StatementEntry::*;
  struct Row {
    Field field;
    std::vector<const char*> refused;
    std::vector<const char*> passed;
  };
  const Row rows[] = {
      {&StatementEntry::txtMinADB, {"", " ", "x", "-0.01", "1,000"}, {"0", "1000.00"}},
      {&StatementEntry::txtMinDBal, {"", ".", "-5"}, {"0.00", "1"}},
      {&StatementEntry::txtDClApy, {"", "0", "0.00", "-1", "2%"}, {"0.01"}},
      {&StatementEntry::txtIntRate, {"", "0", "-0.5", "x"}, {"0.0001"}},
      {&StatementEntry::txtDRFactor,
       {"", "0", "365", "1/", "/365", "2/365", "1/0", "1/367", "1/36.5", "1/x", "1 / 365"},
       {"1/365", "1/366", "1/1", " 1/360 "}},
      {&StatementEntry::txtLedgerdays, {"", "0", "97", "30.5", "-1", "x"}, {"1", "96", " 31 "}},
  };
  for (const Row& row : rows) {
    for (const bool refuse : {true, false}) {
      for (const char* text : refuse ? row.refused : row.passed) {
        EntryExample example;
        (example.entry.*row.field).text = text;
        EXPECT_EQ(ValidateEntries(example.entry).has_value(), refuse) << "'" << text << "'";
      }
    }
  }
}

struct MinimumCase {
  bool stepped;
  bool formula;
  bool adb;  ///< else daily balance
  const char* minimumAdb;
  const char* minimumDaily;
  std::string notice;
  std::string refusal;
};

TEST(EntryChecks, MinimumBalancesSuitTheAccountAndTheMethod) {
  const std::string onlyDaily =
      "Daily Balance Method is the only valid method for Variable rate accounts  @ optDailyBal";
  const MinimumCase cases[] = {
      {false, false, true, "0", "0", "", ""},
      {false, false, true, "100", "50", kMinimumsNotValid, ""},
      {false, false, false, "100", "50", kMinimumsNotValid, ""},
      {false, false, true, "100", "0", "", ""},
      {false, false, true, "0", "50", "", kMinimumsNotValid},
      {false, true, true, "0", "50", "", kMinimumsNotValid},
      {false, false, false, "0", "50", "", ""},
      {false, false, false, "100", "0", "", ""},
      {false, true, false, "100", "0", "", kMinimumsNotValid},
      {false, true, false, "0", "50", "", ""},
      {true, false, false, "100", "0", "", kMinimumsNotValid},
      {true, true, false, "100", "0", "", ""},
      {true, false, false, "0", "50", "", ""},
      {true, false, true, "0", "0", "", onlyDaily},
      {true, false, true, "100", "50", kMinimumsNotValid, onlyDaily},
  };
  for (const MinimumCase& c : cases) {
    EntryExample example;
    if (c.stepped) example.Stepped();
    example.session.AdditionalApy = c.formula;
    ChooseMethod(example.session, example.entry, c.adb);
    example.Minimums(c.minimumAdb, c.minimumDaily);
    const CheckOutcome outcome = Check_For_Errors(example.session, example.entry);
    const std::string input = std::string(c.stepped ? "stepped " : "regular ") +
                              (c.formula ? "formula " : "") + (c.adb ? "ADB " : "daily ") +
                              c.minimumAdb + " " + c.minimumDaily;
    EXPECT_EQ(Told(outcome.notice), c.notice) << input;
    EXPECT_EQ(Told(outcome.refusal), c.refusal) << input;
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
  EXPECT_EQ(code("0", "0", MethodChoice::FollowMinimum), 2);
  EXPECT_EQ(code("100", "50", MethodChoice::FollowMinimum), 2);
  EXPECT_EQ(code("100", "0", MethodChoice::Keep), 1);
  EXPECT_TRUE(entry.optDailyBal) << "only shown so far";
  EXPECT_EQ(code("100", "0", MethodChoice::FollowMinimum), 1);
  EXPECT_TRUE(entry.optADB && session.UseAdb && !session.UseDailyBal);
  EXPECT_EQ(code("0", "50", MethodChoice::FollowMinimum), 2);
  EXPECT_TRUE(entry.optDailyBal && session.UseDailyBal);
  ChooseMethod(session, entry, true);
  session.AdditionalApy = true;
  EXPECT_EQ(code("100", "0", MethodChoice::FollowMinimum), 2);
  EXPECT_TRUE(entry.optDailyBal && !entry.fraIntCalcMethod);
  session.AdditionalApy = false;
  EXPECT_EQ(code("0", "0", MethodChoice::Keep), 2);
  EXPECT_TRUE(entry.fraIntCalcMethod) << "nothing locks it any more";
}

struct PeriodCase {
  const char* start;
  const char* end;
  bool countLeapDay;
  PeriodCaller caller;
  std::string expected;  ///< the days, or the refusal
};

TEST(EntryChecks, TheDatesGiveTheDaysOfThePeriod) {
  using enum PeriodCaller;
  const std::string length = "Number of valid days must be between 1 and 96, Please adjust";
  const PeriodCase cases[] = {
      {"01-01-2024", "01-31-2024", true, Button, "30"},
      {"02-01-2024", "03-01-2024", true, Button, "29"},
      {"02-01-2024", "03-01-2024", false, Button, "28"},
      {"01-01-2024", "04-06-2024", true, Button, "96"},
      {"01-01-2024", "04-07-2024", true, Calendar, length + " @ txtDateStart"},
      {"01-01-2024", "04-07-2024", false, Button, "96"},
      {"01-01-2024", "01-01-2024", true, Button, length + " @ txtDateStart"},
      {"02-28-2024", "02-29-2024", false, Button, length + " @ txtDateStart"},
      {"01-02-2024", "01-01-2024", true, DaysField,
       "Number of days may not exceed 96, Please adjust @ txtDateStart"},
      {"__-__-____", "01-31-2024", true, Button,
       "Starting Date is invalid, Please correct @ txtDateStart"},
      {"02-30-2024", "03-01-2024", true, DaysField,
       "Starting Date Date is invalid, Please correct @ txtDateStart"},
      {"01-01-2024", "__-__-____", true, Calendar,
       "Ending Date is invalid, Please correct @ txtDateEnd"},
      {"01-01-2024", "1_-31-2024", true, DaysField,
       "Ending Date Date is invalid, Please correct @ txtDateEnd"},
  };
  for (const PeriodCase& c : cases) {
    EntryExample example;
    auto& [session, entry] = example;
    session.CountLeapDay = c.countLeapDay;
    entry.txtDateStart.text = c.start;
    entry.txtDateEnd.text = c.end;
    entry.txtLedgerdays.text = "0";
    entry.txtColDays = {.text = " 0 ", .enabled = true};
    const auto refusal = CheckStatementPeriod(session, entry, c.caller);
    const std::string input = std::string(c.start) + " to " + c.end;
    EXPECT_EQ(refusal ? Told(refusal) : entry.txtLedgerdays.text, c.expected) << input;
    EXPECT_EQ(entry.txtColDays.text, refusal ? " 0 " : c.expected) << input;
    const bool tooLong = refusal && refusal->text.starts_with("Number");
    EXPECT_EQ(entry.txtDateStart.text, tooLong ? kEmptyDateMask : c.start) << input;
  }
}

TEST(EntryChecks, TypedDaysStayAndTheStartIsNeverAnEarlierAccounts) {
  EntryExample example;
  auto& [session, entry] = example;
  entry.txtDateStart.text = "03-05-2024";
  EXPECT_EQ(Told(CheckStatementPeriod(session, entry, PeriodCaller::Calendar)), "");
  EXPECT_EQ(entry.txtLedgerdays.text, "30");
  StorePeriodStart(session, entry);
  EXPECT_EQ(session.PeriodStart, SerialOf(*ParseDate("03-05-2024")));
  SetToday(ParseDate("05-06-2025"));
  entry.txtDateStart.text = kEmptyDateMask;
  StorePeriodStart(session, entry);
  SetToday(std::nullopt);
  EXPECT_EQ(session.CurrentDay, SerialOf(*ParseDate("05-06-2025")));
}

TEST(EntryChecks, TheCalendarFillsAnEmptyDaysFieldAndAsksAgainWhenBothDatesStand) {
  EntryExample example;
  auto& [session, entry] = example;
  entry.txtLedgerdays.text = "";
  entry.txtDateStart.text = "01-01-2024";
  EXPECT_TRUE(!DatesForCalendar(entry).start && DatesForCalendar(entry).end);
  entry.txtDateEnd.text = "01-31-2024";
  EXPECT_TRUE(DatesForCalendar(entry).start && DatesForCalendar(entry).end);
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
  EXPECT_NEAR(session.DailyPeriodicRate, 0.015 / 366, 1e-15);
  EXPECT_EQ(session.DailyRateFactor, "1/366");
  entry.txtDRFactor.text = "1365";
  EXPECT_EQ(Told(FactorChanged(session, entry)), "");
  entry.txtDRFactor.text = "13/65";
  EXPECT_EQ(Told(FactorChanged(session, entry)),
            "Please enter the valid Daily Rate factor @ txtDRFactor");
  EXPECT_EQ(session.DaysInYear, 366);
}

std::string EnabledOf(const StatementEntry& e) {
  const std::pair<bool, char> parts[] = {{e.txtLedgerdays.enabled, 'd'},
                                         {e.txtADBLedgerBalance.enabled, 'b'},
                                         {e.cmdComputeLADB, 'c'},
                                         {e.txtColDays.enabled, 'D'},
                                         {e.txtADBCollectedBalance.enabled, 'B'},
                                         {e.cmdComputeCADB, 'C'},
                                         {e.Frame4, 'F'}};
  std::string enabled;
  for (const auto& [is, letter] : parts) enabled += is ? letter : '-';
  return enabled;
}

TEST(EntryChecks, TheBasisOpensTheColumnsAsItIsClicked) {
  EntryExample example;
  auto& [session, entry] = example;
  EXPECT_EQ(EnabledOf(entry), "dbc----");
  session.DetailData = true;
  struct Click {
    void (*choose)(SessionRecord&, StatementEntry&, bool);
    bool yes;
    const char* enabled;
    int basis;
  };
  const Click clicks[] = {{ChooseLedgerEqualsCollected, false, "dbc-BCF", 2},
                          {ChooseLedgerAdb, false, "---DBCF", 3},
                          {ChooseLedgerAdb, true, "dbcDBCF", 2},
                          {ChooseLedgerAdb, false, "---DBCF", 3},
                          {ChooseLedgerEqualsCollected, true, "dbc----", 1}};
  for (const Click& click : clicks) {
    entry.txtLedgerdays.text = "30";
    click.choose(session, entry, click.yes);
    EXPECT_EQ(EnabledOf(entry), click.enabled);
    EXPECT_EQ(session.BalanceBasisCode, click.basis);
    EXPECT_EQ(entry.txtLedgerdays.text, "");
    EXPECT_FALSE(session.DetailData);
  }
}

}  // namespace
}  // namespace corvane
