#include "account/FormulaRefusals.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"
#include "formulas/RegularApy.h"
#include "formulas/SteppedApy.h"
#include "formulas/TierSums.h"

namespace corvane {
namespace {

/// What the entry rules let nobody type, so that the reference tables do not reach it. The account
/// compounds daily in a year of 365 days that begins in January 2023.
class FormulaLimits : public testing::Test {
 protected:
  void SetUp() override {
    session.RoundingDigits = 15;
    session.CompoundDays = session.DaysInYear365 = true;
    session.CompoundingDays = 1;
    session.BeginMonth = 1;
    session.BeginYear = 2023;
    session.PeriodNumber = 1;
    session.TierRate.Set(1, 5);
    session.TierSpan.Set(1, 1000);
  }

  std::string Regular(double rate, double termEntered, const std::string& factor = "1/365",
                      std::int16_t firstPeriod = 1) {
    session.EnteredTerm = term = termEntered;
    return TextOf(CalcRegularApy(session, 5, rate, principal, term, factor, firstPeriod));
  }

  static std::string TextOf(const std::optional<Refusal>& refusal) {
    return refusal ? refusal->text : "";
  }

  SessionRecord session;
  SteppedPeriodResult stepped{7, 7};
  double principal = 1000;
  double interest = 0;
  double term = 0;
};

TEST_F(FormulaLimits, MonthWithdrawalsHaveToFillTheTermOfTheFirstPeriod) {
  const std::string disagree = WithdrawalPeriodsDisagree().text;
  session.ReqWdrwlMonths = true;
  session.WdrwlPeriods = 12;
  session.BtwnReqIntWdrwl = 1;
  session.DailyRateFactor = "1/365";
  EXPECT_EQ(Regular(5, 364), disagree);
  EXPECT_EQ(TextOf(SumTiers(session, TierEnd::High)), disagree);
  EXPECT_EQ(TextOf(CalcSteppedPeriod(session, {1, 5, 91, 1000, "1/365"}, stepped)), disagree);
  EXPECT_EQ(stepped.interest, 7);
  EXPECT_EQ(session.ApyVerdict, "");
  EXPECT_EQ(Regular(5, 364, "1/365", 2), "");
  EXPECT_DOUBLE_EQ(session.ComputedInterest, 50.10);
  session.CompoundDays = false;
  session.CompoundMonths = true;
  session.BtwnReqIntWdrwl = 2;
  EXPECT_EQ(Regular(5, 12), disagree);
}

TEST_F(FormulaLimits, WhatHasNoFiniteResultIsRefusedAtOnce) {
  const std::string notComputable = NotComputable().text;
  const struct {
    const char* what;
    double rate, principal, term, withdrawals;
    const char* factor;
  } cases[] = {
      {"no principal", 5, 0, 365, 0, "1/365"},
      {"no denominator", 5, 1000, 365, 0, "1/0"},
      {"more than everything lost", -50000, 1000, 365, 0, "1/365"},
      {"more steps than single precision counts", 5, 1000, 1e9, 2, "1/365"},
      {"endless term", 5, 1000, 1e308, 2, "1/365"},
  };
  for (const auto& c : cases) {
    session.ReqWdrwlDays = c.withdrawals > 0;
    session.WdrwlPeriods = c.withdrawals;
    principal = c.principal;
    EXPECT_EQ(Regular(c.rate, c.term, c.factor), notComputable) << c.what;
    EXPECT_EQ(session.DaysInYear, 0) << c.what;
  }
  session.ReqWdrwlDays = false;
  for (const char* factor : {"1/0", "365"}) {
    const SteppedPeriod period{1, 5, 91, 1000, factor};
    EXPECT_EQ(TextOf(CalcSteppedPeriod(session, period, stepped)), notComputable) << factor;
  }
  EXPECT_EQ(TextOf(CalcSteppedApy(session, 5, 1000)), notComputable) << "no principal, no term";
  EXPECT_EQ(TextOf(SumTiers(session, TierEnd::High)), notComputable) << "no factor";
  EXPECT_EQ(TextOf(CalcApyFromInterest(session, interest, 0, term, 5)), notComputable);
  EXPECT_EQ(session.ApyVerdict, "");
}

TEST_F(FormulaLimits, AnIntervalBelowOneIsOneAndAFactorWithoutSlashComputesNothing) {
  session.CompoundingDays = 0;
  EXPECT_EQ(Regular(5, 365), "");
  EXPECT_EQ(session.CompoundingDays, 1);
  EXPECT_EQ(Regular(9, 365, "365"), "");
  EXPECT_DOUBLE_EQ(session.ComputedInterest, 51.27);
}

TEST_F(FormulaLimits, OnlyTiersKeepThePrincipalThatDayWithdrawalsGrow) {
  session.ReqWdrwlDays = true;
  session.WdrwlPeriods = 365;
  for (bool tiered : {true, false}) {
    session.AcctTierA = tiered;
    EXPECT_EQ(Regular(5, 365), "");
    EXPECT_NEAR(principal, tiered ? 1000 : 1050, 1e-9);
    EXPECT_EQ(session.TierInterestTotal, 50);
  }
}

TEST_F(FormulaLimits, YearlyInterestKeepsTheGrownPrincipalAndRoundsTheFigure) {
  session.EnteredTerm = 2;
  principal = 1000.01;
  ASSERT_FALSE(CalcYearlyInterest(session, 5, 365, principal, interest));
  EXPECT_DOUBLE_EQ(interest, 102.50);
  EXPECT_NEAR(principal, 1102.511025, 1e-9);
  session.EnteredTerm = 1e9;
  EXPECT_TRUE(CalcYearlyInterest(session, 5, 365, principal, interest).has_value());
}

TEST_F(FormulaLimits, ApyFromInterestHandsBackRoundedInterestAndCountedTerm) {
  session.CompoundingDays = 5;
  session.EnteredTerm = 73;
  interest = 50.005;
  ASSERT_FALSE(CalcApyFromInterest(session, interest, 1000, term, 5));
  EXPECT_DOUBLE_EQ(interest, 50.00);
  EXPECT_EQ(term, 365);
  session.CompoundDays = false;
  session.CompoundMonths = true;
  term = 20000;
  EXPECT_TRUE(CalcApyFromInterest(session, interest, 1000, term, 5).has_value());
  EXPECT_EQ(term, 20000);
}

}  // namespace
}  // namespace corvane
