#include "disclosure/EntryChecks.h"

#include <gtest/gtest.h>

#include <sstream>

#include "disclosure/EntryLayout.h"
#include "disclosure/EntryTerm.h"
#include "shell/SessionRecord.h"

namespace corvane {
namespace {

std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

/// The account that words describe: its type, compounding unit, interval and withdrawals.
SessionRecord Account(const std::string& words) {
  SessionRecord session;
  session.DaysInYear365 = true;
  session.ReqWdrwlNotReq = words.find("withdrawn") == std::string::npos;
  session.ReqWdrwlDays = words.find("withdrawn-days") != std::string::npos;
  session.ReqWdrwlMonths = words.find("withdrawn-months") != std::string::npos;
  session.TotalTiers = 2;
  session.TierAbove.Set(2, 1000);
  for (const std::string& word : Words(words)) {
    if (word == "regular") session.AcctRegular = true;
    if (word == "stepped") session.AcctStepped = true;
    if (word == "tiered-A") session.AcctTierA = true;
    if (word == "tiered-B") session.AcctTierB = true;
    if (word == "none") session.CompoundNone = true;
    if (word == "days") session.CompoundDays = true;
    if (word == "months") session.CompoundMonths = true;
    if (word == "years") session.CompoundYears = true;
    if (word == "leap") session.CountLeapDay = true;
    if (word == "366") session.DaysInYear365 = !(session.DaysInYear366 = true);
    if (word == "1" || word == "30") session.CompoundingDays = word == "1" ? 1 : 30;
  }
  return session;
}

/// Enables the fields as the window does.
void Enable(const SessionRecord& session, DisclosureEntry& entry) {
  const EntryGroups groups = GroupsFor(session);
  entry.txtTierPerNum.enabled = groups.periodNumber;
  entry.txtBeginMonth.enabled = entry.txtBeginYear.enabled = groups.dateRange;
  entry.txtWdrwlPeriods.enabled = entry.txtBtwnReqIntWdrwl.enabled = groups.withdrawal;
  entry.txtDailyRateFactor.enabled = !groups.factorFixed;
  entry.tStartDate.enabled = entry.tEndDate.enabled =
      HasCalendar(session) && AsksForCalendar(entry.txtTerm.text);
}

/// Changes a field as "name=text" says, "+" enabling it whatever the account.
void Change(const SessionRecord& session, DisclosureEntry& entry, const std::string& change) {
  const bool enables = change.front() == '+';
  const auto equals = change.find('=');
  for (const EntryFieldName& known : kEntryFields) {
    if (change.substr(enables, equals - enables) != known.name) continue;
    (entry.*known.field).text = change.substr(equals + 1);
    Enable(session, entry);
    if (enables) (entry.*known.field).enabled = true;
  }
}

/// "name=a|b" as "name=a" and "name=b".
std::vector<std::string> Alternatives(const std::string& change) {
  std::vector<std::string> all;
  const auto text = change.find('=') + 1;
  for (auto from = text; from != 0;) {
    const auto bar = change.find('|', from);
    all.push_back(change.substr(0, text) + change.substr(from, bar - from));
    from = bar + 1;
  }
  return all;
}

const struct {
  const char *text, *field;
} kMessages[] = {
    {"", ""},
    {"Please enter a valid period number value", "txtTierPerNum"},
    {"Please enter the period numbers from 2 to 10 only.", "txtTierPerNum"},
    {"Please enter a valid Tier Number value", "txtTierPerNum"},
    {"Please enter a Tier number from 2 to 10 only.", "txtTierPerNum"},
    {"Please enter a valid Beginning Month value", "txtBeginMonth"},
    {"Please enter a valid Beginning Year value.", "txtBeginYear"},
    {"Please enter a Year value above 1900.", "txtBeginYear"},
    {"Please enter a valid Disclosed APY value", "txtDiscAPY"},
    {"Please enter a valid Principal Balance Amount", "txtBal"},
    {"Please enter a valid Interest Rate value", "txtIntRateA"},
    {"Starting Date is invalid, Please correct", "tStartDate"},
    {"Please enter a valid Compounding Period value", "txtTerm"},
    {"Please enter a smaller number of years value to proceed.", "txtTerm"},
    {"Please enter a valid number for the duration between required interest withdrawals",
     "txtBtwnReqIntWdrwl"},
    {"Please enter a valid Withdrawal Period for term", "txtWdrwlPeriods"},
    {"The Compounding Period must be evenly divisble by the Withdrawal periods", "txtTerm"},
    {"Withdrawal periods do not agree with compound periods", "txtTerm"},
    {"The duration of days between compounding period and the interest withdrawal period should "
     "be same",
     "txtBtwnReqIntWdrwl"},
    {"The Term period should be evenly divisible by the withdrawal periods", "txtTerm"},
    {"Please enter the Period for the withdrawal of interest", "txtWdrwlPeriods"},
    {"Please enter the Period equal to the compound period", "txtWdrwlPeriods"},
    {"Please enter Balance for Tier to proceed", "txtBal"},
    {"Both the dates cannot be same. Please try again.", "tEndDate"},
    {"The End date cannot be earlier than the Start date. Please try again.", "tEndDate"},
    {"Please enter a valid Daily Rate Factor", "txtDailyRateFactor"},
    {"Daily Rate Factor can't equal 366 if days selected equal 365", "txtDailyRateFactor"},
    {"Daily Rate Factor can not exceed 365", "txtDailyRateFactor"},
    {"Daily Rate Factor can not exceed 366", "txtDailyRateFactor"},
};

// Each account starts with empty fields that are then put right in the order of the checks. The
// number is that of the check that must fail after the change, 0 where all pass; of several texts
// each one must do so.
const struct {
  const char* account;
  std::vector<std::pair<const char*, int>> steps;
} kSequences[] = {
    {"stepped days 1 withdrawn-days",
     {{"txtTerm=0 txtTierPerNum=|x", 1},
      {"txtTierPerNum=1|0|-2|2.5|11", 2},
      {"txtTierPerNum=2|10", 8},
      {"txtDiscAPY=5 txtBal=|1,000|0|-1", 9},
      {"txtBal=1000", 10},
      {"txtIntRateA=5 tStartDate=__-__-____|02-30-2023", 11},
      {"tStartDate=01-01-2023 txtBtwnReqIntWdrwl=|2.5", 14},
      {"txtBtwnReqIntWdrwl=2 txtWdrwlPeriods=|.5", 15},
      {"txtWdrwlPeriods=7", 18},
      {"tEndDate=01-11-2023", 17},
      {"txtWdrwlPeriods=5", 18},
      {"txtBtwnReqIntWdrwl=1 tEndDate=01-01-2023", 23},
      {"tEndDate=12-31-2022", 24},
      {"tEndDate=01-11-2023 txtDailyRateFactor=|2/365|1/|1/0|1/-365|1/364.5", 25},
      {"txtDailyRateFactor=1/366", 26},
      {"txtDailyRateFactor=1/367", 27},
      {"txtDailyRateFactor=1/360 txtTerm=0|10", 0},
      {"txtWdrwlPeriods=2.5", 20},
      {"txtWdrwlPeriods=10", 0}}},
    {"tiered-A none leap",
     {{"txtTierPerNum=", 3},
      {"txtTierPerNum=11", 4},
      {"txtTierPerNum=10 txtDiscAPY=5 txtBal=.01 txtIntRateA=-5 txtTerm=36600.5|-365|x", 12},
      {"txtTerm=365.5", 25},
      {"txtDailyRateFactor=1/366", 26},
      {"txtDailyRateFactor=1/367", 28},
      {"txtDailyRateFactor=1/365 txtTerm=36600", 0},
      {"txtTerm= tStartDate=02-28-2023 tEndDate=02-29-2024", 0}}},
    {"regular months 1 withdrawn-months",
     {{"txtBeginMonth=|0|13", 5},
      {"txtBeginMonth=3 txtBeginYear=|10000", 6},
      {"txtBeginYear=1900", 7},
      {"txtBeginYear=1901 txtDiscAPY=5 txtBal=1000 txtIntRateA=0 txtTerm=|0|1.5|1201", 12},
      {"txtTerm=12", 14},
      {"txtBtwnReqIntWdrwl=1 txtWdrwlPeriods=|5", 16},
      {"txtWdrwlPeriods=1.5", 20},
      {"txtTerm=1200 txtWdrwlPeriods=1200 txtBtwnReqIntWdrwl=2", 20},
      {"txtTerm=12 txtWdrwlPeriods=4 txtBtwnReqIntWdrwl=3 txtDailyRateFactor=1/365", 0},
      {"txtBeginMonth=12 txtBeginYear=9999", 0}}},
    {"regular days 1 withdrawn-months 366 leap",
     {{"txtBeginMonth=1 txtBeginYear=2024 txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtTerm=365", 14},
      {"txtBtwnReqIntWdrwl=1 txtWdrwlPeriods=|12|1201", 19},
      {"txtTerm=366 txtWdrwlPeriods=12 txtDailyRateFactor=1/366", 0}}},
    {"regular years 1",
     {{"txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtTerm=|0", 12},
      {"txtTerm=51|50.01", 13},
      {"txtTerm=1.5|50", 0}}},
    {"regular days 30",
     {{"txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtDailyRateFactor=1/365 txtTerm=1221", 12},
      {"txtTerm=1220", 0},
      {"+txtWdrwlPeriods=x", 20},
      {"+txtWdrwlPeriods=2", 21},
      {"+txtWdrwlPeriods=30", 0},
      {"txtTerm=0 tStartDate=01-01-2023 tEndDate=01-01-2024", 12},
      {"tEndDate=12-27-2023", 0}}},
    {"regular days 1",
     {{"txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtDailyRateFactor=1/365 txtTerm=0", 11},
      {"tStartDate=02-28-2024 tEndDate=02-29-2024", 12},  // no day is left when it does not count
      {"tEndDate=03-01-2024", 0},
      {"tEndDate=02-28-2024 txtTerm=5", 0}}},
    {"tiered-B months 1",
     {{"txtTierPerNum=2 txtBeginMonth=1 txtBeginYear=2023 txtDiscAPY=5 txtIntRateA=5 txtTerm=12 "
       "txtDailyRateFactor=1/365 txtBal=1000",
       22},
      {"txtBal=1000.01", 0}}},
};

TEST(EntryChecks, EachFailsInItsTurnAndNothingElseIsRefused) {
  for (const auto& [account, steps] : kSequences) {
    const SessionRecord session = Account(account);
    DisclosureEntry entry;
    for (const auto& [changes, failing] : steps) {
      const std::vector<std::string> words = Words(changes);
      for (const std::string& word : words) {
        for (const std::string& change : Alternatives(word)) {
          Change(session, entry, change);
          if (word != words.back()) continue;
          const auto refusal = CheckEntry(session, entry);
          const auto shown = account + (", " + change);
          EXPECT_EQ(refusal ? refusal->text : "", kMessages[failing].text) << shown;
          EXPECT_EQ(refusal ? refusal->field : "", kMessages[failing].field) << shown;
        }
      }
    }
    const std::string& month = entry.txtBeginMonth.text;
    EXPECT_TRUE(month.empty() || month.size() == 2) << account << ": month " << month;
  }
}

TEST(EntryChecks, TheCalendarPassCountsTheTermOrSaysWhatIsWrongWithTheDates) {
  const char* empty = "__-__-____";
  const struct {
    const char *account, *term, *start, *end, *factor;
    const char *message, *field, *counted;
  } cases[] = {
      {"regular none", "0", empty, empty, "1/365", "Starting Date is invalid, Please correct",
       "tStartDate", "0"},
      {"regular none", "", "02-30-2023", empty, "1/365",
       "Starting Date Date is invalid, Please correct", "tStartDate", ""},
      {"regular none", "0", "01-01-2023", empty, "1/365", "Ending Date is invalid, Please correct",
       "tEndDate", "0"},
      {"regular days 1", "0", "01-01-2023", "1_-01-2024", "1/365",
       "Ending Date Date is invalid, Please correct", "tEndDate", "0"},
      {"regular days 1", "0", "01-01-2023", "01-01-2024", "11/365",
       "Please enter the valid Daily Rate factor.", "txtDailyRateFactor", "0"},
      {"regular days 1", "0", "01-01-2024", "01-01-2025", "1/365", "", "", "365"},
      {"regular days 1 leap", "", "01-01-2024", "01-01-2025", "1/365", "", "", "366"},
      {"regular days 30", "0.0", "01-01-2023", "12-27-2023", "1/365", "", "", "12"},
      {"regular days 1", "90", empty, empty, "1/365", "", "", "90"},
      {"regular months 1", "9", empty, empty, "1/365", "", "", "9"},
  };
  for (const auto& c : cases) {
    const SessionRecord session = Account(c.account);
    DisclosureEntry entry;
    entry.txtTerm.text = c.term;
    entry.tStartDate.text = c.start;
    entry.tEndDate.text = c.end;
    entry.txtDailyRateFactor.text = c.factor;
    const auto refusal = CheckCalendarTerm(session, entry);
    const auto shown = std::string(c.account) + ", " + c.start + " to " + c.end;
    EXPECT_EQ(refusal ? refusal->text : "", c.message) << shown;
    EXPECT_EQ(refusal ? refusal->field : "", c.field) << shown;
    EXPECT_EQ(entry.txtTerm.text, c.counted) << shown;
  }
}

}  // namespace
}  // namespace corvane
