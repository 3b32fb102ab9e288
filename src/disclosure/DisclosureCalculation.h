#pragma once

#include <optional>
#include <vector>

#include "disclosure/DisclosureCheck.h"
#include "formulas/Outcome.h"

namespace corvane {

/// What came of an attempt: a refusal, or results to show, or neither when further tiers have to
/// be entered first.
struct AttemptOutcome {
  std::optional<Refusal> refusal;
  bool showsResults = false;
};

/// One attempt of Calculate or Next: runs the entry checks, keeps the entry as completed and
/// computes. A regular account is computed at once, a stepped one after every period, a tiered one
/// after its last tier. The entry comes back with what the checks write into its fields (the
/// two-digit month, the counted term). After a refusal nothing more is completed than before.
AttemptOutcome AttemptCalculation(DisclosureCheck& check, DisclosureEntry& entry);

/// What the formulas take of the completed entries: the periods, tiers or tier ends.
std::vector<Deposit> CompletedDeposits(const DisclosureCheck& check);

/// The days in the year that an account's APY is for; by method B not always those of the setup.
int YearDaysOf(const DisclosureCheck& check);

/// The result of the completed entries by these terms, TermsOf(check.setup) or another reading of
/// them. A stepped account without a completed period has none.
Outcome<DisclosureResult> ComputeResult(const DisclosureCheck& check, const AccountTerms& terms);

/// What the completed entries come to, before the account is complete; nothing while none is, or
/// when a formula has no result for them.
std::optional<DisclosureResult> ResultSoFar(const DisclosureCheck& check);

}  // namespace corvane
