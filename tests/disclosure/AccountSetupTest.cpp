#include "disclosure/AccountSetup.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"

namespace corvane {
namespace {

/// The choices whose names the words hold, in a year of 365 days.
AccountSetup Chosen(const std::string& words, const char* interval = "1") {
  const std::pair<const char*, bool AccountSetup::*> options[] = {
      {"None", &AccountSetup::optICNone},          {"Days", &AccountSetup::optICDays},
      {"Months", &AccountSetup::optICMonths},      {"Years", &AccountSetup::optICYears},
      {"regular", &AccountSetup::optRegNoDisc},    {"methodA", &AccountSetup::optTierA},
      {"methodB", &AccountSetup::optTierB},        {"keeping", &AccountSetup::optRINotReq},
      {"withdrawing", &AccountSetup::optRIMonths}, {"366", &AccountSetup::optDY366},
      {"counting", &AccountSetup::optLYYes},
  };
  AccountSetup setup;
  for (const auto& [word, option] : options) setup.*option = words.find(word) != words.npos;
  setup.optDY365 = !setup.optDY366;
  setup.optLYNo = !setup.optLYYes;
  setup.txtDailyCompounding = interval;
  return setup;
}

TEST(AccountSetup, ChecksInOrderAndWhatIsStored) {
  const char* type = "Please select an Account Type.";
  const char* valid = "Please enter a valid compounding interval.";
  const char* months = "Months between compounding must be 1, 2, 3, 4, 6 or 12.";
  const char* longPeriods =
      "Withdrawals measured in months need compounding every day or by months.";
  const struct {
    const char* choices;
    std::vector<const char*> intervals;
    const char* message;  // empty where the setup is accepted
    int stored = 0;
  } cases[] = {
      {"Days", {"-1"}, type},
      {"regular Days", {"-1", "-.6", "32768", "40000"}, valid},
      {"regular Months withdrawing", {"-1"}, valid},
      {"regular Months", {"0", "5", "7", "11", "13", "24"}, months},
      {"regular Days withdrawing", {"2", "32767"}, longPeriods},
      {"regular Months", {"x", ""}, ""},
      {"regular Months", {"2", "1.5", "2.5"}, "", 2},
      {"regular Months withdrawing", {"12"}, "", 12},
      {"regular Days withdrawing", {"1", ".9"}, "", 1},
      {"methodA Days", {"x", "", "0", "0.5"}, "", 0},
      {"methodB Days", {"3.5"}, "", 4},
      {"regular Years", {"32767"}, "", 32767},
      {"regular None", {"40000"}, "", 0},
  };
  for (const auto& c : cases) {
    for (const char* interval : c.intervals) {
      AccountSetup setup = Chosen(c.choices, interval);
      const auto shown = std::string(c.choices) + " " + interval;
      const auto refusal = CheckSetup(setup);
      EXPECT_EQ(refusal ? refusal->text : "", c.message) << shown;
      if (refusal) {
        EXPECT_EQ(refusal->field, c.message == type ? "" : "txtDailyCompounding");
        EXPECT_EQ(refusal->icon == MessageIcon::None, c.message == type);
        continue;
      }
      SessionRecord session;
      session.PeriodCount = 3;
      StoreSetup(session, setup);
      EXPECT_EQ(session.CompoundingDays, c.stored) << shown;
      EXPECT_EQ(session.CompoundMonths, setup.optICMonths) << shown;
      EXPECT_EQ(session.ReqWdrwlMonths, setup.optRIMonths) << shown;
      EXPECT_EQ(session.PeriodCount, 0);
      EXPECT_TRUE(session.RoundNotTruncate);
    }
  }
}

TEST(AccountSetup, OnlyMethodBRefusesMonthsByMonths) {
  for (const auto& [choices, message] :
       {std::pair{"methodB Months withdrawing", "Months/Months is not in production yet"},
        {"methodB Months keeping", ""},
        {"methodB Days withdrawing", ""},
        {"methodA Months withdrawing", ""}}) {
    AccountSetup setup = Chosen(choices);
    SessionRecord session;
    StoreSetup(session, setup);
    const auto refusal = CheckMonthsByMonths(session);
    EXPECT_EQ(refusal ? refusal->text : "", message) << choices;
  }
}

TEST(AccountSetup, AYearOf366DaysAlwaysCountsTheLeapDayAndSaysSoOnce) {
  for (const auto& [choices, days, counts, told] : {std::tuple{"365", 365, false, false},
                                                    {"365 counting", 365, true, false},
                                                    {"366 counting", 366, true, false},
                                                    {"366", 366, true, true}}) {
    AccountSetup setup = Chosen(choices);
    SessionRecord session;
    const auto notice = StoreDaysInYear(session, setup);
    EXPECT_EQ(notice.has_value(), told) << choices;
    EXPECT_EQ(session.DaysInYear, days) << choices;
    EXPECT_EQ(session.CountLeapDay, counts) << choices;
    EXPECT_FALSE(StoreDaysInYear(session, setup)) << "the choice was changed";
  }
}

TEST(AccountSetup, TheEntryIsKeptForTheSameAccountTypeOnly) {
  SessionRecord session;
  session.AcctTypeCode = session.PrevAcctTypeCode = 1;
  EXPECT_FALSE(KeepsEntry(session));
  session.EntryDataKept = true;
  EXPECT_TRUE(KeepsEntry(session));
  session.AcctTypeCode = 2;
  EXPECT_FALSE(KeepsEntry(session));
}

}  // namespace
}  // namespace corvane
