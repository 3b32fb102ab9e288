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

TEST(StatementEntryChecks, TheDatesRuleTheDaysOfThePeriod) {
  using enum PeriodCaller;
  const char* empty = "__-__-____";
  const std::string length =
      "Number of valid days must be between 1 and 96, Please adjust @ txtDateStart";
  const std::string noEnd = "Ending Date is invalid, Please correct @ txtDateEnd";
  const struct {
    const char *typed, *start, *end;  ///< the days typed, nullptr where those before stay
    PeriodCaller caller;
    bool countLeapDay;
    std::string days, told;
  } steps[] = {
      {" 0 ", "02-01-2024", "03-01-2024", Button, false, "28", ""},
      {"0", "01-01-2024", "04-06-2024", Button, true, "96", ""},
      {"0", "01-01-2024", "04-07-2024", Calendar, true, "0", length},
      {"0", "01-01-2024", "01-01-2024", Button, true, "0", length},
      {"0", "01-02-2024", "01-01-2024", DaysField, true, "0",
       "Number of days may not exceed 96, Please adjust @ txtDateStart"},
      {"0", empty, "01-31-2024", Button, true, "0",
       "Starting Date is invalid, Please correct @ txtDateStart"},
      {"0", "01-01-2024", "02-30-2024", Calendar, true, "0", noEnd},
      {"0", "01-01-2024", "1_-31-2024", DaysField, true, "0",
       "Ending Date Date is invalid, Please correct @ txtDateEnd"},
      {"30", "01-01-2024", "03-28-2024", Calendar, true, "30",
       "The dates count 87 days; the entry is 30. @ "},
      {nullptr, "01-01-2024", "03-2_-2024", Button, true, "30", noEnd},
      {nullptr, "01-01-2024", empty, Button, true, "30", ""},
      {"", "01-01-2024", "02-01-2024", Button, true, "",
       "The dates count 31 days; the entry is 0. @ "},
      {nullptr, "01-01-2024", "02-01-2024", Calendar, true, "31", ""},
      {nullptr, "01-01-2024", "03-01-2024", DaysField, false, "59", ""},
      {nullptr, "01-01-2024", "03-0_-2024", Button, true, "", noEnd},
      {nullptr, "01-01-2024", "03-01-2024", DaysField, true, "60", ""},
      {nullptr, "01-01-2024", "06-01-2024", Button, true, "", length},
  };
  Entry entry;
  entry.txtColDays.enabled = true;
  for (const auto& step : steps) {
    SCOPED_TRACE(std::string(step.start) + " to " + step.end);
    const YearRule year = {.days = 365, .countsLeapDay = step.countLeapDay};
    if (step.typed) entry.txtLedgerdays = entry.txtColDays = {step.typed};
    entry.txtDateStart.text = step.start;
    entry.txtDateEnd.text = step.end;
    RecountPeriod(year, entry);
    const auto refusal = CountPeriod(year, entry, step.caller);
    EXPECT_EQ(Told(refusal ? refusal : DaysNotice(year, entry)), step.told);
    for (const Field& days : {entry.txtLedgerdays, entry.txtColDays}) {
      EXPECT_EQ(days.text, step.days);
    }
    const bool noPeriod = refusal && refusal->text.starts_with("Number");
    EXPECT_EQ(entry.txtDateStart.text, noPeriod ? empty : step.start);
  }
}

TEST(StatementEntryChecks, TheCalendarAsksForTheEmptyDatesAndAnEmptyStartIsToday) {
  Entry entry;
  const Date today = *ParseDate("05-06-2025");
  EXPECT_EQ(PeriodStart(entry, today), today);
  entry.txtDateStart.text = "01-01-2024";
  EXPECT_EQ(PeriodStart(entry, today), ParseDate("01-01-2024"));
  EXPECT_TRUE(!DatesForCalendar(entry).start && DatesForCalendar(entry).end);
  entry.txtDateEnd.text = "02-01-2024";
  EXPECT_TRUE(DatesForCalendar(entry).start && DatesForCalendar(entry).end);
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
