#include "disclosure/DisclosureSetup.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"

namespace corvane {
namespace {

/// The choices whose names the words hold.
AccountSetup Chosen(const std::string& words, const char* interval) {
  const std::pair<const char*, bool AccountSetup::*> options[] = {
      {"None", &AccountSetup::optICNone},       {"Days", &AccountSetup::optICDays},
      {"Months", &AccountSetup::optICMonths},   {"Years", &AccountSetup::optICYears},
      {"regular", &AccountSetup::optRegNoDisc}, {"methodA", &AccountSetup::optTierA},
      {"methodB", &AccountSetup::optTierB},     {"withdrawing", &AccountSetup::optRIMonths},
  };
  AccountSetup setup;
  for (const auto& [word, option] : options) setup.*option = words.find(word) != words.npos;
  setup.txtDailyCompounding = interval;
  return setup;
}

TEST(AccountSetup, ChecksInOrderAndWhatIsStored) {
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
      {"Days", {"-1"}, "Please select an Account Type."},
      {"regular Days", {"-1", "-.6", "32768"}, valid},
      {"regular Months withdrawing", {"-1"}, valid},
      {"regular Months", {"0", "5", "7", "11", "13", "24"}, months},
      {"regular Days withdrawing", {"2", "32767"}, longPeriods},
      {"methodB Months withdrawing", {"12"}, "Months/Months is not in production yet", 12},
      {"methodB Months", {"12"}, "", 12},
      {"methodA Months withdrawing", {"x", ""}, ""},
      {"regular Months", {"2", "1.5", "2.5"}, "", 2},
      {"regular Days withdrawing", {"1", ".9"}, "", 1},
      {"methodA Days", {"x", "", "0", "0.5"}, "", 0},
      {"methodB Days", {"3.5"}, "", 4},
      {"regular None", {"40000"}, "", 0},
  };
  for (const auto& c : cases) {
    for (const char* interval : c.intervals) {
      SCOPED_TRACE(std::string(c.choices) + " " + interval);
      AccountSetup setup = Chosen(c.choices, interval);
      SessionRecord session;
      session.PeriodCount = 3;
      auto refusal = CheckSetup(setup);
      if (!refusal) {
        StoreSetup(session, setup);
        refusal = CheckMonthsByMonths(session);
        EXPECT_EQ(session.PeriodCount, 0);
      }
      EXPECT_EQ(refusal ? refusal->text : "", c.message);
      EXPECT_EQ(session.CompoundingDays, c.stored);
    }
  }
}

}  // namespace
}  // namespace corvane
