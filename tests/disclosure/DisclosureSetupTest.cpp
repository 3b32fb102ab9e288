#include "disclosure/DisclosureCheck.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

/// The setup that words describe.
DisclosureSetup Described(const std::string& words, const char* interval) {
  const auto has = [&words](const char* word) { return words.find(word) != words.npos; };
  DisclosureSetup setup;
  setup.kind.reset();
  if (has("regular")) setup.kind = AccountKind::Regular;
  if (has("methodA")) setup.kind = AccountKind::TierA;
  if (has("methodB")) setup.kind = AccountKind::TierB;
  if (has("None")) setup.compounding = Unit::None;
  if (has("Months")) setup.compounding = Unit::Months;
  if (has("withdrawing")) setup.withdrawal = Unit::Months;
  setup.txtDailyCompounding.text = interval;
  return setup;
}

TEST(DisclosureSetup, ChecksInOrderAndTheIntervalThatCounts) {
  const char* valid = "Please enter a valid compounding interval.";
  const char* months = "Months between compounding must be 1, 2, 3, 4, 6 or 12.";
  const char* longPeriods =
      "Withdrawals measured in months need compounding every day or by months.";
  const struct {
    const char* choices;
    std::vector<const char*> intervals;
    const char* message;  // empty where the setup is accepted
    int length = 1;
  } cases[] = {
      {"Days", {"-1"}, "Please select an Account Type."},
      {"regular Days", {"-1", "-.6", "32768"}, valid},
      {"regular Months withdrawing", {"-1"}, valid},
      {"regular Months", {"0", "5", "7", "11", "13", "24"}, months},
      {"regular Days withdrawing", {"2", "32767"}, longPeriods},
      {"methodB Months withdrawing", {"12"}, "Months/Months is not in production yet"},
      {"methodB Months", {"12"}, "", 12},
      {"methodA Months withdrawing", {"x", ""}, ""},
      {"regular Months", {"2", "1.5", "2.5"}, "", 2},
      {"regular Days withdrawing", {"1", ".9"}, "", 1},
      {"methodA Days", {"x", "", "0", "0.5"}, ""},
      {"methodB Days", {"3.5"}, "", 4},
      {"regular None", {"40000"}, ""},
  };
  for (const auto& c : cases) {
    for (const char* interval : c.intervals) {
      SCOPED_TRACE(std::string(c.choices) + " " + interval);
      DisclosureSetup setup = Described(c.choices, interval);
      DisclosureCheck check;
      check.completed = 3;
      const CheckOutcome outcome = ContinueSetup(check, setup);
      EXPECT_EQ(outcome.refusal ? outcome.refusal->text : "", c.message);
      EXPECT_EQ(check.completed, *c.message ? 3 : 0);
      if (*c.message) continue;
      EXPECT_EQ(TermsOf(check.setup).compounding.length, c.length);
    }
  }
}

}  // namespace
}  // namespace corvane
