#include "disclosure/DisclosureCheck.h"

namespace corvane {

CheckOutcome ContinueSetup(DisclosureCheck& check, DisclosureSetup& choices) {
  if (auto refusal = CheckSetup(choices)) return {.refusal = std::move(refusal)};
  CheckOutcome outcome;
  if (choices.year.days == 366 && !choices.year.countsLeapDay) {
    outcome.notice = LeapDayNotice();
    choices.year.countsLeapDay = true;
  }
  if (!choices.txtDailyCompounding.IsNumber()) choices.txtDailyCompounding.text = "0";
  if (choices.kind != check.setup.kind) check.entries.clear();
  if (choices.year.days != check.setup.year.days) {
    for (DisclosureEntry& entry : check.entries) entry.txtDailyRateFactor.text.clear();
  }
  check.setup = choices;
  check.completed = 0;
  check.result.reset();
  return outcome;
}

void TakeTiers(DisclosureCheck& check, const TierTable& tiers) {
  if (!SameTiers(check.tiers, tiers)) check.entries.clear();
  check.tiers = tiers;
  check.completed = 0;
  check.result.reset();
}

}  // namespace corvane
