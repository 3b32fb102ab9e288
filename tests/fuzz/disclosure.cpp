#include <cmath>

#include "Typist.h"
#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntryLayout.h"
#include "disclosure/EntrySequence.h"
#include "formulas/AnnualYield.h"

using namespace corvane;

namespace {

void DemandResult(const DisclosureCheck& check) {
  DEMAND(check.completed >= 1 && check.completed <= EntryCount(check));
  DEMAND(check.result && !check.result->rows.empty());
  for (const ResultRow& row : check.result->rows) {
    DEMAND(std::isfinite(row.interest) && row.interest == row.interest);
    DEMAND(!row.apy || IsApy(*row.apy));
    DEMAND(row.apy.has_value() == row.verdict.has_value());
    if (row.verdict) DEMAND(*row.verdict == CheckApy(row.disclosedApy, *row.apy));
  }
}

/// A person who fills an entry, tries it, and goes on or back.
void Enter(DisclosureCheck& check, FuzzedDataProvider& input) {
  DisclosureEntry entry = PresentEntry(check);
  for (int act = input.ConsumeIntegralInRange(0, 12); act > 0; --act) ActOn(entry, input);
  CaptionsFor(check);
  const int before = check.completed;
  const AttemptOutcome outcome = AttemptCalculation(check, entry);
  DEMAND(!outcome.refusal || check.completed <= before);
  if (outcome.showsResults) DemandResult(check);
  if (outcome.showsResults) check.completed = EntryBehindResults(check) - 1;
  if (input.ConsumeBool() && check.completed > 0) --check.completed;
}

}  // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  DisclosureSetup setup;
  for (int act = input.ConsumeIntegralInRange(0, 6); act > 0; --act) ActOn(setup, input);
  DisclosureCheck check;
  if (ContinueSetup(check, setup).refusal) return 0;
  if (setup.IsTiered()) {
    const TierTable tiers = TypedTiers(input);
    if (CheckTierTable(tiers)) return 0;
    TakeTiers(check, tiers);
  }
  while (input.remaining_bytes() > 0) Enter(check, input);
  return 0;
}
