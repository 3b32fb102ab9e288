#include "formulas/TierSums.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {
namespace {

/// Stores a tier table: the rates of all tiers and the upper bounds of all but the last.
void StoreTiers(SessionRecord& session, const std::vector<double>& rates,
                const std::vector<double>& bounds) {
  for (int k = 1; k <= static_cast<int>(rates.size()); ++k) {
    const auto place = static_cast<std::size_t>(k - 1);
    session.TierRate.Set(k, rates[place]);
    if (place < bounds.size()) session.TierNotExceeding.Set(k, bounds[place]);
    if (k > 1) session.TierAbove.Set(k, bounds[place - 1]);
  }
  for (int k = 1; k <= 9; ++k) {
    session.TierSpan.Set(k, session.TierNotExceeding.At(k) - session.TierAbove.At(k));
  }
}

std::optional<Refusal> CalculateTier(SessionRecord& session, TierEnd end, double disclosedApy) {
  if (const auto refusal = SumTiers(session, end)) return refusal;
  double interest = session.ComputedInterest;
  double term = session.EnteredTerm;
  return CalcApyFromInterest(session, interest, session.Principal, term, disclosedApy);
}

SessionRecord DailyAccount() {
  SessionRecord session;
  session.RoundingDigits = 15;
  session.AcctTierB = true;
  session.CompoundDays = true;
  session.CompoundingDays = 1;
  session.DaysInYear365 = true;
  session.EnteredTerm = 365;
  session.DailyRateFactor = "1/365";
  StoreTiers(session, {5.25, 5.5, 5.75}, {2500, 15000});
  return session;
}

struct PublishedCase {
  std::int16_t tier;
  TierEnd end;
  double typedBalance;
  double apy;
};

TEST(TierSums, GiveTheRegulationsOwnFigures) {
  // Regulation DD, Appendix A, Part I.D, method B: 5.39 %, 5.39 % to 5.61 %, 5.61 % to 5.87 %.
  const PublishedCase cases[] = {
      {1, TierEnd::High, 0, 5.39}, {2, TierEnd::Low, 0, 5.39},       {2, TierEnd::High, 0, 5.61},
      {3, TierEnd::Low, 0, 5.61},  {3, TierEnd::High, 100000, 5.87},
  };
  for (const PublishedCase& c : cases) {
    SessionRecord session = DailyAccount();
    session.PeriodNumber = c.tier;
    session.EnteredBalance = c.typedBalance;
    ASSERT_FALSE(CalculateTier(session, c.end, c.apy));
    EXPECT_DOUBLE_EQ(session.ComputedApy, c.apy) << "tier " << c.tier;
  }
}

TEST(TierSums, RefusalsEndTheSum) {
  SessionRecord session = DailyAccount();
  session.PeriodNumber = 2;
  session.ReqWdrwlMonths = true;
  session.WdrwlPeriods = 11;
  session.BtwnReqIntWdrwl = 1;
  session.BeginMonth = 1;
  session.BeginYear = 2023;
  const auto disagree = CalculateTier(session, TierEnd::High, 5);
  ASSERT_TRUE(disagree.has_value());
  EXPECT_EQ(disagree->text, "Withdrawal periods do not agree with compound periods.");
  session.ReqWdrwlMonths = false;
  session.DailyRateFactor = "1/0";
  EXPECT_TRUE(CalculateTier(session, TierEnd::High, 5).has_value());
  EXPECT_EQ(session.ApyVerdict, "");
}

TEST(TierSums, ApyFromInterestHandsBackRoundedInterestAndCountedTerm) {
  SessionRecord session = DailyAccount();
  session.CompoundingDays = 5;
  double interest = 50.005;
  double term = 1;
  session.EnteredTerm = 73;
  ASSERT_FALSE(CalcApyFromInterest(session, interest, 1000, term, 5));
  EXPECT_DOUBLE_EQ(interest, 50.00);
  EXPECT_EQ(term, 365);
  session.CompoundDays = false;
  session.CompoundMonths = true;
  session.CompoundingDays = 3;
  session.BeginMonth = 1;
  session.BeginYear = 2023;
  term = 4;
  ASSERT_FALSE(CalcApyFromInterest(session, interest, 1000, term, 5));
  EXPECT_EQ(term, 12);
  EXPECT_DOUBLE_EQ(session.ComputedApy, 5);
  term = 20000;
  EXPECT_TRUE(CalcApyFromInterest(session, interest, 1000, term, 5).has_value());
  EXPECT_EQ(term, 20000);
}

}  // namespace
}  // namespace corvane
