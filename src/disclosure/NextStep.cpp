#include "disclosure/NextStep.h"

#include "disclosure/DisclosureNotes.h"
#include "disclosure/EntrySequence.h"

namespace corvane {

namespace {

std::string PeriodFigures(const DisclosureCheck& check) {
  if (check.completed == 0) return "Type the number of periods and the figures of the first one.";
  return "Type rate and term of period " + std::to_string(CurrentEntry(check)) + ".";
}

std::string TierFigures(const DisclosureCheck& check) {
  const std::string tier = "tier " + std::to_string(PeriodOrTier(check));
  if (check.setup.kind == AccountKind::TierA) {
    return "Type a balance in " + tier + " and the APY disclosed for it.";
  }
  if (check.completed == 0) return "Type the term and the APY disclosed for " + tier + ".";
  if (IsLastEntry(check)) return "Type a balance assumed for " + tier + " and its disclosed APY.";
  const char* end = IsLowEnd(CurrentEntry(check)) ? "low" : "high";
  return "Type the APY disclosed for the " + std::string(end) + " end of " + tier + ".";
}

std::string TierButton(const DisclosureCheck& check) {
  if (IsLastEntry(check)) return " Next computes all tiers.";
  const int next = CurrentEntry(check) + 1;
  if (check.setup.kind == AccountKind::TierA) {
    return " Next goes on to tier " + std::to_string(next) + ".";
  }
  if (!IsLowEnd(next)) return " Next goes on to its high end.";
  return " Next goes on to the low end of tier " + std::to_string(TierOfEntry(next)) + ".";
}

}  // namespace

std::string NextStepOfEntry(const DisclosureCheck& check) {
  if (check.setup.IsTiered()) return TierFigures(check) + TierButton(check);
  if (check.setup.kind == AccountKind::Stepped) {
    const char* button = IsLastEntry(check) ? " Calculate computes the account."
                                            : " Next computes up to this period.";
    return PeriodFigures(check) + button;
  }
  return "Type the figures of the disclosure. Calculate computes the APY and compares it.";
}

std::string NextStepOfResults(const DisclosureCheck& check) {
  if (check.setup.IsTiered()) return "All tiers computed. Back returns to the last one.";
  if (check.setup.kind != AccountKind::Stepped) {
    return "Computed. Back returns to the figures, New Account starts another account.";
  }
  const std::string remain = PeriodsRemainText(check);
  if (remain.empty()) return "All periods computed. Back returns to the last one.";
  return remain + " Back goes on to period " + std::to_string(EntryBehindResults(check)) + ".";
}

}  // namespace corvane
