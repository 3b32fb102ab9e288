#include "disclosure/DisclosureCalculation.h"

#include "account/SessionRecord.h"
#include "disclosure/EntryChecks.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/PeriodStore.h"
#include "disclosure/SteppedCalculation.h"
#include "disclosure/TieredCalculation.h"
#include "formulas/RegularApy.h"

namespace corvane {

namespace {

constexpr std::int16_t kFirstPeriod = 1;

std::optional<Refusal> ComputeRegular(SessionRecord& session) {
  const PeriodFigures figures = UseStoredPeriod(session, session.PeriodCount);
  double principal = figures.balance;
  double term = figures.term;
  return CalcRegularApy(session, figures.disclosedApy, figures.rate, principal, term,
                        figures.factor, kFirstPeriod);
}

std::optional<Refusal> Compute(SessionRecord& session) {
  if (session.AcctStepped) return ComputeStepped(session);
  if (session.AcctTierA) return ComputeTiersByMethodA(session);
  if (session.AcctTierB) return ComputeTiersByMethodB(session);
  return ComputeRegular(session);
}

bool IsComputed(const SessionRecord& session) {
  return !IsTiered(session) || session.PeriodCount == EntryCount(session);
}

AttemptOutcome CheckStoreAndCompute(SessionRecord& session, DisclosureEntry& entry) {
  if (const auto refusal = CheckEntry(session, entry)) return {refusal};
  if (const auto refusal = CheckCalendarTerm(session, entry)) return {refusal};
  TakePeriodNumber(session, entry);
  StoreEntry(session, session.PeriodCount, entry);
  if (!IsComputed(session)) return {};
  return {Compute(session), true};
}

}  // namespace

AttemptOutcome AttemptCalculation(SessionRecord& session, DisclosureEntry& entry) {
  const std::int16_t before = session.PeriodCount;
  session.PeriodCount = static_cast<std::int16_t>(before + 1);
  const AttemptOutcome outcome = CheckStoreAndCompute(session, entry);
  if (outcome.refusal) session.PeriodCount = before;
  return outcome;
}

}  // namespace corvane
