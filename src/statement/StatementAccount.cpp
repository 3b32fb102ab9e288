#include "statement/StatementAccount.h"

#include <algorithm>

#include "account/SessionRecord.h"

namespace corvane {

namespace {

std::vector<BalanceTier> TiersOf(const SessionRecord& session) {
  const int count = std::clamp<int>(session.TierNumber, 1, session.TierRate.Last());
  std::vector<BalanceTier> tiers;
  for (int tier = 1; tier <= count; ++tier) {
    tiers.push_back({session.TierAbove.At(tier), session.TierRate.At(tier)});
  }
  return tiers;
}

}  // namespace

RateKind RateKindOf(const SessionRecord& session) {
  if (session.AcctStepped) return RateKind::Stepped;
  if (session.AcctTierA) return RateKind::TierA;
  if (session.AcctTierB) return RateKind::TierB;
  return RateKind::Regular;
}

bool IsTiered(RateKind kind) {
  return kind == RateKind::TierA || kind == RateKind::TierB;
}

StatementAccount AccountOf(const SessionRecord& session, double rate) {
  StatementAccount account;
  account.kind = RateKindOf(session);
  account.method = session.BalanceMethodCode == 1 ? BalanceMethod::AverageDailyBalance
                                                  : BalanceMethod::DailyBalance;
  account.compoundingDays = session.CompoundDays ? std::max<int>(session.CompoundingDays, 1) : 0;
  account.daysInYear = session.DaysInYear;
  account.rate = rate;
  account.minimumAdb = session.MinAdb;
  account.minimumDailyBalance = session.MinDailyBal;
  if (IsTiered(account.kind)) account.tiers = TiersOf(session);
  return account;
}

}  // namespace corvane
