#include "disclosure/EntryChecks.h"

#include <gtest/gtest.h>

#include "CaseTable.h"
#include "disclosure/EntrySequence.h"

namespace corvane {
namespace {

/// The account that words describe: its type, compounding unit, interval and withdrawals.
DisclosureCheck Account(const std::string& description) {
  const std::map<std::string, void (*)(DisclosureSetup&)> words = {
      {"regular", [](DisclosureSetup& s) { s.kind = AccountKind::Regular; }},
      {"stepped", [](DisclosureSetup& s) { s.kind = AccountKind::Stepped; }},
      {"tiered-A", [](DisclosureSetup& s) { s.kind = AccountKind::TierA; }},
      {"tiered-B", [](DisclosureSetup& s) { s.kind = AccountKind::TierB; }},
      {"none", [](DisclosureSetup& s) { s.compounding = Unit::None; }},
      {"days", [](DisclosureSetup& s) { s.compounding = Unit::Days; }},
      {"months", [](DisclosureSetup& s) { s.compounding = Unit::Months; }},
      {"years", [](DisclosureSetup& s) { s.compounding = Unit::Years; }},
      {"leap", [](DisclosureSetup& s) { s.year.countsLeapDay = true; }},
      {"366", [](DisclosureSetup& s) { s.year.days = 366; }},
      {"by-days", [](DisclosureSetup& s) { s.withdrawal = Unit::Days; }},
      {"by-months", [](DisclosureSetup& s) { s.withdrawal = Unit::Months; }},
      {"30", [](DisclosureSetup& s) { s.txtDailyCompounding.text = "30"; }},
  };
  DisclosureCheck check;
  for (const std::string& word : SplitAt(description, ' ')) words.at(word)(check.setup);
  check.tiers.count = 2;
  check.tiers.Of(1).notExceeding = "1000";
  return check;
}

/// Types into a field; which fields are enabled is up to the account, as in the window.
void Change(const DisclosureCheck& check, DisclosureEntry& entry, const std::string& name,
            const std::string& text) {
  const DisclosureEntry present = PresentEntry(check);
  for (const auto& [known, field] : DisclosureEntry::Fields()) {
    (entry.*field).enabled = (present.*field).enabled || name == known;
    if (name == known) (entry.*field).text = text;
  }
  entry.tStartDate.enabled = entry.tEndDate.enabled = TermDatesEnabled(check, entry.txtTerm);
}

/// "field: message"; empty where nothing is refused.
std::string Said(const std::optional<Refusal>& refusal) {
  return refusal ? refusal->field + ": " + refusal->text : "";
}

constexpr const char* kBadTerm = "txtTerm: Please enter a valid Compounding Period value";
constexpr const char* kBadFactor = "txtDailyRateFactor: Please enter a valid Daily Rate Factor";
constexpr const char* kFactorOf366 =
    "txtDailyRateFactor: Daily Rate Factor can't equal 366 if days selected equal 365";
constexpr const char* kBadDistance =
    "txtBtwnReqIntWdrwl: Please enter a valid number for the duration between required interest "
    "withdrawals";
constexpr const char* kOtherDistance =
    "txtBtwnReqIntWdrwl: The duration of days between compounding period and the interest "
    "withdrawal period should be same";
constexpr const char* kBadPeriods =
    "txtWdrwlPeriods: Please enter the Period for the withdrawal of interest";

// Each account starts with empty fields that are then put right in the order of the checks. The
// text is what must be said after the change, nothing where all checks pass; of several values of
// the last field each one must do so.
const struct {
  const char* account;
  std::vector<std::pair<const char*, const char*>> steps;
} kSequences[] = {
    {"stepped days by-days",
     {{"txtTerm=0 txtTierPerNum=|x", "txtTierPerNum: Please enter a valid period number value"},
      {"txtTierPerNum=1|2.5|11",
       "txtTierPerNum: Please enter the period numbers from 2 to 10 only."},
      {"txtTierPerNum=2|10", "txtDiscAPY: Please enter a valid Disclosed APY value"},
      {"txtDiscAPY=-1", "txtDiscAPY: Please enter a valid Disclosed APY value"},
      {"txtDiscAPY=5 txtBal=|1,000|0", "txtBal: Please enter a valid Principal Balance Amount"},
      {"txtBal=1000 txtIntRateA=|-5", "txtIntRateA: Please enter a valid Interest Rate value"},
      {"txtIntRateA=5 tStartDate=__-__-____|02-30-2023",
       "tStartDate: Starting Date is invalid, Please correct"},
      {"tStartDate=01-01-2023 txtBtwnReqIntWdrwl=|2.5", kBadDistance},
      {"txtBtwnReqIntWdrwl=2 txtWdrwlPeriods=|.5",
       "txtWdrwlPeriods: Please enter a valid Withdrawal Period for term"},
      {"txtWdrwlPeriods=7", kOtherDistance},
      {"tEndDate=01-11-2023", "txtTerm: Withdrawal periods do not agree with compound periods"},
      {"txtWdrwlPeriods=5", kOtherDistance},
      {"txtBtwnReqIntWdrwl=1 tEndDate=01-01-2023",
       "tEndDate: Both the dates cannot be same. Please try again."},
      {"tEndDate=12-31-2022",
       "tEndDate: The End date cannot be earlier than the Start date. Please try again."},
      {"tEndDate=01-11-2023 txtDailyRateFactor=|2/365|1/|1/0|1/364.5", kBadFactor},
      {"txtDailyRateFactor=1/366", kFactorOf366},
      {"txtDailyRateFactor=1/367", "txtDailyRateFactor: Daily Rate Factor can not exceed 365"},
      {"txtDailyRateFactor=1/360 txtTerm=0|10", ""},
      {"txtWdrwlPeriods=2.5", kBadPeriods}}},
    {"tiered-A none leap",
     {{"txtTierPerNum=|", "txtTierPerNum: Please enter a valid Tier Number value"},
      {"txtTierPerNum=11", "txtTierPerNum: Please enter a Tier number from 2 to 10 only."},
      {"txtTierPerNum=10 txtDiscAPY=5 txtBal=.01 txtIntRateA=0 txtTerm=36600.5|-365|x", kBadTerm},
      {"txtTerm=365.5", kBadFactor},
      {"txtDailyRateFactor=1/366", kFactorOf366},
      {"txtDailyRateFactor=1/367", "txtDailyRateFactor: Daily Rate Factor can not exceed 366"},
      {"txtDailyRateFactor=1/365 txtTerm=36600", ""}}},
    {"regular months by-months",
     {{"txtBeginMonth=|0|13", "txtBeginMonth: Please enter a valid Beginning Month value"},
      {"txtBeginMonth=3 txtBeginYear=|10000",
       "txtBeginYear: Please enter a valid Beginning Year value."},
      {"txtBeginYear=1900", "txtBeginYear: Please enter a Year value above 1900."},
      {"txtBeginYear=1901 txtDiscAPY=5 txtBal=9 txtIntRateA=0 txtTerm=|0|1.5|1201", kBadTerm},
      {"txtTerm=12", kBadDistance},
      {"txtBtwnReqIntWdrwl=1 txtWdrwlPeriods=|.5",
       "txtWdrwlPeriods: The Compounding Period must be evenly divisble by the Withdrawal periods"},
      {"txtWdrwlPeriods=5",
       "txtTerm: The Compounding Period must be evenly divisble by the Withdrawal periods"},
      {"txtTerm=1200 txtWdrwlPeriods=1200 txtBtwnReqIntWdrwl=2", kBadPeriods},
      {"txtTerm=12 txtWdrwlPeriods=4 txtBtwnReqIntWdrwl=3 txtDailyRateFactor=1/365", ""},
      {"txtBeginMonth=12 txtBeginYear=9999", ""}}},
    {"regular days by-months 366 leap",
     {{"txtBeginMonth=1 txtBeginYear=2024 txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtTerm=365",
       kBadDistance},
      {"txtBtwnReqIntWdrwl=1 txtWdrwlPeriods=|12|1201",
       "txtTerm: The Term period should be evenly divisible by the withdrawal periods"},
      {"txtTerm=366 txtWdrwlPeriods=12 txtDailyRateFactor=1/366", ""}}},
    {"regular years",
     {{"txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtTerm=|0", kBadTerm},
      {"txtTerm=51|50.01", "txtTerm: Please enter a smaller number of years value to proceed."},
      {"txtTerm=1.5|50", ""}}},
    {"regular days 30",
     {{"txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtDailyRateFactor=1/365 txtTerm=1221", kBadTerm},
      {"txtTerm=1220", ""},
      {"txtTerm=0 tStartDate=01-01-2023 tEndDate=01-01-2024", kBadTerm},
      {"tEndDate=12-27-2023", ""}}},
    {"regular days",
     {{"txtDiscAPY=5 txtBal=9 txtIntRateA=5 txtDailyRateFactor=1/365 txtTerm=0 "
       "tStartDate=02-28-2024 tEndDate=02-29-2024",
       kBadTerm},  // no day is left when 29 February does not count
      {"tEndDate=03-01-2024", ""}}},
    {"tiered-B months",
     {{"txtTierPerNum=2 txtBeginMonth=1 txtBeginYear=2023 txtDiscAPY=5 txtIntRateA=5 txtTerm=12 "
       "txtDailyRateFactor=1/365 txtBal=1000",
       "txtBal: Please enter Balance for Tier to proceed"},
      {"txtBal=1000.01", ""}}},
};

TEST(DisclosureEntryChecks, EachFailsInItsTurnAndNothingElseIsRefused) {
  for (const auto& [account, steps] : kSequences) {
    const DisclosureCheck check = Account(account);
    DisclosureEntry entry;
    for (const auto& [changes, expected] : steps) {
      const auto words = SplitAt(changes, ' ');
      for (const std::string& word : words) {
        const std::string name = SplitAt(word, '=')[0];
        for (const std::string& text : SplitAt(word.substr(name.size() + 1), '|')) {
          Change(check, entry, name, text);
          if (word != words.back()) continue;
          EXPECT_EQ(Said(CheckEntry(check, entry)), expected)
              << account << ", " << name << "=" << text;
        }
      }
    }
    entry = Completed(check, entry);
    EXPECT_NE(entry.txtBeginMonth.text.size(), 1u) << account << ": the month has two places";
  }
}

TEST(DisclosureEntryChecks, TheCalendarTermIsCountedOrTheDatesAreRefused) {
  const char* empty = "__-__-____";
  const char* noStart = "tStartDate: Starting Date is invalid, Please correct";
  const struct {
    const char *account, *term, *start, *end, *said, *counted;
  } cases[] = {
      {"none", "0", empty, empty, noStart, "0"},
      {"none", "", "02-30-2023", empty, noStart, ""},
      {"none", "0", "01-01-2023", empty, "tEndDate: Ending Date is invalid, Please correct", "0"},
      {"days", "0", "01-01-2023", "1_-01-2024",
       "tEndDate: Ending Date Date is invalid, Please correct", "0"},
      {"days", "0", "01-01-2024", "01-01-2025", "", "365"},
      {"days leap", "", "01-01-2024", "01-01-2025", "", "366"},
      {"days 30", "0.0", "01-01-2023", "12-27-2023", "", "12"},
      {"days 30", "0", "01-01-2023", "12-28-2023", kBadTerm, "0"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.account) + ", " + c.start + " to " + c.end);
    const DisclosureCheck check = Account(c.account);
    DisclosureEntry entry = PresentEntry(check);
    entry.txtDiscAPY.text = entry.txtBal.text = entry.txtIntRateA.text = "5";
    entry.txtTerm.text = c.term;
    entry.tStartDate.text = c.start;
    entry.tEndDate.text = c.end;
    EXPECT_EQ(Said(CheckEntry(check, entry)), c.said);
    EXPECT_EQ(Completed(check, entry).txtTerm.text, c.counted);
  }
}

}  // namespace
}  // namespace corvane
