#include "formulas/TierSums.h"

#include <algorithm>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/DailyRateFactor.h"
#include "formulas/TermInterest.h"

namespace corvane {

namespace {

constexpr double kShareAtLowEnd = 0.01;

void ClearSums(SessionRecord& session) {
  session.Principal = 0;
  session.ComputedInterest = 0;
  session.TierInterestTotal = 0;
  session.RateScheduleText.clear();
}

std::optional<Refusal> AddTier(SessionRecord& session, std::int16_t k, double share,
                               double denominator) {
  // The interest functions change these in place, and every tier has to start from the same.
  double principal = share;
  double term = session.EnteredTerm;
  double interest = 0;
  const TermRate rate{.percent = session.TierRate.At(k), .denominator = denominator};
  const auto refusal = CalcTermInterest(session, rate, principal, term, interest);
  if (refusal) return refusal;
  session.Principal += share;
  session.ComputedInterest += interest;
  session.TierInterestTotal += interest;
  AppendRateSchedule(session, k);
  return std::nullopt;
}

}  // namespace

double TierShare(const SessionRecord& session, std::int16_t k, std::int16_t reached, TierEnd end) {
  if (k == reached && end == TierEnd::Low) return kShareAtLowEnd;
  const double width = session.TierSpan.At(k);
  return width > 0 ? width : session.EnteredBalance - session.TierAbove.At(k);
}

std::optional<Refusal> SumTiers(SessionRecord& session, TierEnd end) {
  ClearSums(session);
  const auto denominator = FactorDenominator(session.DailyRateFactor);
  if (!denominator) return NotComputable();
  const int last = std::min<int>(session.PeriodNumber, session.TierRate.Last());
  for (std::int16_t k = 1; k <= last; ++k) {
    const double share = TierShare(session, k, session.PeriodNumber, end);
    if (const auto refusal = AddTier(session, k, share, *denominator)) return refusal;
  }
  return std::nullopt;
}

}  // namespace corvane
