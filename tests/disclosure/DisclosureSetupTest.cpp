#include "CheckTable.h"
#include "disclosure/DisclosureCheck.h"

namespace corvane {
namespace {

TEST(DisclosureSetup, ChecksInOrderAndTheIntervalThatCounts) {
  DisclosureCheck check;
  DisclosureSetup setup;
  RunChecks(
      "disclosure/SetupChecks.txt",
      {.begin = [&] { setup = {}; },
       .put =
           [&](auto& name, auto& text) {
             if (name != "noAccountType") return Put(setup, name, text);
             setup.kind.reset();
             return true;
           },
       .said =
           [&] {
             check.completed = 3;
             DisclosureSetup choices = setup;
             const auto refusal = ContinueSetup(check, choices).refusal;
             EXPECT_EQ(check.completed, refusal ? 3 : 0);
             return Said(refusal);
           },
       .shown = [&](auto&) { return std::to_string(TermsOf(check.setup).compounding.length); }});
}

}  // namespace
}  // namespace corvane
