#include "formulas/SteppedApy.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {
namespace {

TEST(SteppedApy, GivesTheRegulationsOwnFigures) {
  // Regulation DD, Appendix A, Part I.B: 5 % for 91 days, then 5.5 %, daily compounding.
  SessionRecord session;
  session.RoundingDigits = 15;
  session.CompoundDays = true;
  session.DaysInYear365 = true;
  session.Principal = 1000;
  SteppedPeriodResult first;
  SteppedPeriodResult second;
  ASSERT_FALSE(CalcSteppedPeriod(session, {1, 5, 91, 1000, "1/365"}, first));
  ASSERT_FALSE(CalcSteppedPeriod(session, {2, 5.5, 92, 1000 + first.interest, "1/365"}, second));
  session.ComputedInterest = first.interest + second.interest;
  session.TermUnits = first.termUnits + second.termUnits;
  ASSERT_FALSE(CalcSteppedApy(session, 5.45, 1000));
  EXPECT_EQ(FormatFixed2(session.ComputedInterest), "26.68");
  EXPECT_DOUBLE_EQ(session.ComputedApy, 5.39);
  EXPECT_EQ(session.ApyVerdict, "APY VIOLATION");
}

TEST(SteppedApy, YearlyInterestKeepsTheGrownPrincipalAndRoundsTheFigure) {
  SessionRecord session;
  session.RoundingDigits = 15;
  session.CompoundYears = true;
  session.EnteredTerm = 2;
  double principal = 1000.01;
  double interest = 0;
  ASSERT_FALSE(CalcYearlyInterest(session, 5, 365, principal, interest));
  EXPECT_DOUBLE_EQ(interest, 102.50);
  EXPECT_NEAR(principal, 1102.511025, 1e-9);
  session.EnteredTerm = 1e9;
  EXPECT_TRUE(CalcYearlyInterest(session, 5, 365, principal, interest).has_value());
}

TEST(SteppedApy, WhatHasNoResultIsRefusedWithNothingStored) {
  SessionRecord session;
  session.RoundingDigits = 15;
  session.CompoundDays = true;
  SteppedPeriodResult result{7, 7};
  EXPECT_TRUE(CalcSteppedPeriod(session, {1, 5, 91, 1000, "1/0"}, result).has_value());
  session.ReqWdrwlMonths = true;
  const auto refusal = CalcSteppedPeriod(session, {1, 5, 91, 1000, "1/365"}, result);
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(refusal->text, "Withdrawal periods do not agree with compound periods.");
  EXPECT_EQ(result.interest, 7);
  EXPECT_TRUE(CalcSteppedApy(session, 5, 1000).has_value()) << "no principal, no term";
  EXPECT_EQ(session.ApyVerdict, "");
}

}  // namespace
}  // namespace corvane
