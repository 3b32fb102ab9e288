#include "disclosure/DisclosureCalculation.h"

#include "disclosure/EntryChecks.h"
#include "disclosure/PeriodStore.h"
#include "formulas/RegularApy.h"
#include "shell/SessionRecord.h"

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

std::optional<Refusal> CheckStoreAndCompute(SessionRecord& session, DisclosureEntry& entry) {
  if (const auto refusal = CheckEntry(session, entry)) return refusal;
  if (const auto refusal = CheckCalendarTerm(session, entry)) return refusal;
  StoreEntry(session, session.PeriodCount, entry);
  return ComputeRegular(session);
}

}  // namespace

std::optional<Refusal> AttemptCalculation(SessionRecord& session, DisclosureEntry& entry) {
  const std::int16_t before = session.PeriodCount;
  session.PeriodCount = static_cast<std::int16_t>(before + 1);
  const auto refusal = CheckStoreAndCompute(session, entry);
  if (refusal) session.PeriodCount = before;
  return refusal;
}

}  // namespace corvane
