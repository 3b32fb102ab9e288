#include "statement/EntryChecks.h"

#include "CaseTable.h"
#include "statement/EntryExamples.h"

namespace corvane {
namespace {

using Entry = StatementEntry;
using enum BalanceMethod;

TEST(StatementEntryChecks, RefuseInTheirOrderWhatTheFormulasCannotTake) {
  const char* daysRange = "The valid Ledger Days range is 1 to 96, inclusive";
  const struct {
    Field Entry::*field;
    const char *refused, *passed;  ///< texts, those refused joined by "|"
    std::string told;
  } rows[] = {
      {&Entry::txtMinADB, "|x|-0.01|1,000", "0", "Please enter a valid Minimum ADB amount or Zero"},
      {&Entry::txtMinDBal, "|", "0.00", "Please enter a valid Minimum daily balance or Zero"},
      {&Entry::txtDClApy, "|0.00|2%", "0.01", "Please enter a valid Disclosed APY percentage"},
      {&Entry::txtIntRate, "|0", "0.0001", "Please enter a valid Interest Rate"},
      {&Entry::txtDRFactor, "|365|1/|2/365|1/0|1/367", " 1/366 ",
       "Please enter a valid Daily Rate Factor"},
      {&Entry::txtLedgerdays, "|0.0|97|30.5", "96", daysRange},
      {&Entry::txtColDays, "0.0", "1", daysRange},
  };
  StatementCheck check;  // everything is wrong; each row mends its field in the end
  check.entry.txtColDays.enabled = true;
  const auto told = [&check] { return Told(CheckEntries(check).refusal); };
  for (const auto& row : rows) {
    Field& field = check.entry.*row.field;
    for (const std::string& text : SplitAt(row.refused, '|')) {
      field.text = text;
      EXPECT_EQ(told(), row.told + " @ " + NameOf(row.field)) << "'" << text << "'";
    }
    field.text = row.passed;
    if (row.field == &Entry::txtDRFactor) {
      EXPECT_EQ(told(), "Choose one of the types of the Interest Calculation. @ optDailyBal");
      check.entry.method = AverageDailyBalance;
    }
  }
  EXPECT_EQ(told(), "");
}

TEST(StatementEntryChecks, MinimumBalancesSuitTheAccountAndTheMethod) {
  using enum AccountKind;
  const std::string notValid =
      "Values entered for Minimum ADB and Minimum Daily Balance \n"
      "        are not valid for the selected Statement Type and \n"
      "                            Interest Calculation Method @ txtMinADB";
  const std::string onlyDaily =
      "Daily Balance Method is the only valid method for Variable rate accounts  @ optDailyBal";
  const struct {
    AccountKind kind;
    bool formula;
    BalanceMethod method;
    const char *minimumAdb, *minimumDaily;
    std::string notice, refusal;
    BalanceMethod then;  ///< what the checks select
  } cases[] = {
      {Regular, false, DailyBalance, "100", "50", notValid, "", DailyBalance},
      {Regular, false, AverageDailyBalance, "0", "0", "", "", AverageDailyBalance},
      {Regular, false, AverageDailyBalance, "0", "50", "", notValid, AverageDailyBalance},
      {Regular, false, DailyBalance, "100", "0", "", "", AverageDailyBalance},
      {Regular, true, DailyBalance, "100", "0", "", notValid, DailyBalance},
      {Regular, true, AverageDailyBalance, "100", "0", "", "", DailyBalance},
      {Stepped, false, DailyBalance, "100", "0", "", notValid, DailyBalance},
      {Stepped, true, DailyBalance, "100", "0", "", "", DailyBalance},
      {Stepped, false, AverageDailyBalance, "100", "50", notValid, onlyDaily, AverageDailyBalance},
      {Stepped, false, AverageDailyBalance, "0", "50", "", onlyDaily, AverageDailyBalance},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    EntryExample example;
    example.Become(c.kind);
    example.setup.additionalFormula = c.formula;
    example.entry.method = c.method;
    example.Minimums(c.minimumAdb, c.minimumDaily);
    const CheckOutcome outcome = CheckEntries(example);
    EXPECT_EQ(Told(outcome.notice), c.notice);
    EXPECT_EQ(Told(outcome.refusal), c.refusal);
    EXPECT_EQ(example.entry.method, c.then);
  }
}

TEST(StatementEntryChecks, TheDatesGiveTheDaysOfThePeriod) {
  using enum PeriodCaller;
  const std::string length =
      "Number of valid days must be between 1 and 96, Please adjust @ txtDateStart";
  const struct {
    const char *start, *end;
    bool countLeapDay;
    PeriodCaller caller;
    std::string expected;  ///< the days, or the refusal
  } cases[] = {
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
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.start) + " to " + c.end);
    Entry entry;
    entry.txtDateStart.text = c.start;
    entry.txtDateEnd.text = c.end;
    entry.txtLedgerdays.text = "0";
    entry.txtColDays = {.text = " 0 ", .enabled = true};
    const auto refusal =
        CountPeriod({.days = 365, .countsLeapDay = c.countLeapDay}, entry, c.caller);
    EXPECT_EQ(refusal ? Told(refusal) : entry.txtLedgerdays.text, c.expected);
    EXPECT_EQ(entry.txtColDays.text, refusal ? " 0 " : c.expected);
    const bool tooLong = refusal && refusal->text.starts_with("Number");
    EXPECT_EQ(entry.txtDateStart.text, tooLong ? kEmptyDateMask : c.start);
  }
}

TEST(StatementEntryChecks, AnEmptyDaysFieldIsTheCalendarsAndAnEmptyStartToday) {
  Entry entry;
  entry.txtLedgerdays.text = "30";
  const auto daysAfter = [&entry](PeriodCaller caller) {
    EXPECT_EQ(Told(CountPeriod({}, entry, caller)), "");
    return entry.txtLedgerdays.text;
  };
  const Date today = *ParseDate("05-06-2025");
  EXPECT_EQ(PeriodStart(entry, today), today);
  EXPECT_EQ(daysAfter(PeriodCaller::Calendar), "30") << "typed days stay";
  entry.txtDateStart.text = "01-01-2024";
  EXPECT_EQ(PeriodStart(entry, today), ParseDate("01-01-2024"));
  EXPECT_TRUE(!DatesForCalendar(entry).start && DatesForCalendar(entry).end);
  entry.txtDateEnd.text = "02-01-2024";
  EXPECT_TRUE(DatesForCalendar(entry).start && DatesForCalendar(entry).end);
  entry.txtLedgerdays.text = "";
  EXPECT_EQ(daysAfter(PeriodCaller::Button), "");
  EXPECT_EQ(daysAfter(PeriodCaller::Calendar), "31");
}

TEST(StatementEntryChecks, TheFactorIsReadOnceItCanBeWhole) {
  EntryExample example;
  for (const auto& [text, told] :
       {std::pair{"1365", ""},
        {"13/65", "Please enter the valid Daily Rate factor @ txtDRFactor"},
        {"1/366", ""}}) {
    example.entry.txtDRFactor.text = text;
    EXPECT_EQ(Told(FactorChanged(example.entry)), told);
  }
  EXPECT_EQ(AccountOf(example).factorDays, 366);
  example.Become(AccountKind::Stepped);
  example.entry.txtDRFactor.text = "13/65";
  EXPECT_EQ(Told(FactorChanged(example.entry)), "") << "without a rate it is left to Calculate";
}

TEST(StatementEntryChecks, TheBasisOpensTheColumnsAsItIsClicked) {
  using enum BalanceBasis;
  const struct {
    void (*choose)(Entry&, bool);
    bool yes;
    BalanceBasis basis;
    bool ledger, collectedDays, collectedAverage;
  } clicks[] = {{ChooseLedgerEqualsCollected, false, LedgerAverage, true, false, true},
                {ChooseLedgerAdb, false, CollectedAverage, false, true, true},
                {ChooseLedgerAdb, true, LedgerAverage, true, true, true},
                {ChooseLedgerEqualsCollected, true, Equal, true, false, false}};
  Entry entry;
  for (const auto& click : clicks) {
    SCOPED_TRACE(&click - clicks);
    for (Field* typed : {&entry.txtLedgerdays, &entry.txtADBCollectedBalance}) typed->text = "30";
    click.choose(entry, click.yes);
    EXPECT_EQ(entry.basis, click.basis);
    EXPECT_EQ(entry.txtLedgerdays, (Field{"", click.ledger}));
    EXPECT_EQ(entry.txtADBLedgerBalance, (Field{"", click.ledger}));
    EXPECT_EQ(entry.txtColDays, (Field{"", click.collectedDays}));
    EXPECT_EQ(entry.txtADBCollectedBalance, (Field{"", click.collectedAverage}));
  }
}

}  // namespace
}  // namespace corvane
