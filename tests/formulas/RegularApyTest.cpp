#include "formulas/RegularApy.h"

#include <gtest/gtest.h>

#include "CaseTable.h"
#include "formulas/RoundValue.h"

namespace corvane {
namespace {

/// A session with daily compounding, a 365-day year and no withdrawals.
SessionRecord DailyAccount() {
  SessionRecord session;
  session.RoundingDigits = 15;
  session.AcctRegular = true;
  session.CompoundDays = true;
  session.CompoundingDays = 1;
  session.DaysInYear365 = true;
  session.BeginMonth = 1;
  session.BeginYear = 2023;
  return session;
}

std::optional<Refusal> Calculate(SessionRecord& session, double rate, double principal, double term,
                                 const std::string& factor = "1/365") {
  session.EnteredTerm = term;
  return CalcRegularApy(session, 5, rate, principal, term, factor, 1);
}

TEST(RegularApy, AgreesWithTheReference) {
  for (const CaseRow& row : ReadCases("regular.csv")) {
    SCOPED_TRACE(row.line);
    SessionRecord session = AccountOf(row);
    session.AcctRegular = row.Text("account") == "regular";
    session.AcctTierA = row.Text("account") == "tierA";
    session.WdrwlPeriods = row.Number("w");
    session.BtwnReqIntWdrwl = row.Number("m");
    session.BeginMonth = row.Whole("month");
    session.BeginYear = row.Whole("year");
    double principal = row.Number("balance");
    double term = session.EnteredTerm = row.Number("term");
    const auto refusal = CalcRegularApy(session, row.Number("apy"), row.Number("rate"), principal,
                                        term, session.DailyRateFactor, 1);
    ASSERT_FALSE(refusal.has_value()) << refusal->text;
    EXPECT_NEAR(session.ComputedInterest, row.Number("interest"), 1e-9);
    EXPECT_NEAR(session.ComputedApy, row.Number("apy"), 1e-9);
    EXPECT_EQ(session.TermDays, row.Number("counted"));
    EXPECT_EQ(term, session.TermDays);
    EXPECT_EQ(session.ApyVerdict, "OK");
    EXPECT_EQ(session.DaysInYear, row.Number("factor"));
    if (!session.AcctTierA) continue;
    EXPECT_EQ(principal, row.Number("balance"));
    EXPECT_EQ(session.TierInterestTotal, session.ComputedInterest);
  }
}

struct PublishedCase {
  const char* source;
  bool daily;
  double principal;
  double rate;
  double interest;
  double apy;
};

TEST(RegularApy, GivesTheRegulationsOwnFigures) {
  const PublishedCase cases[] = {
      {"Appendix A, Part I.A.1, example (1)", false, 1000, 6.168, 61.68, 6.17},
      {"Appendix A, Part I.D, method A, first tier", true, 1000, 5.25, 53.90, 5.39},
      {"Appendix A, Part I.D, method A, second tier", true, 8000, 5.5, 452.29, 5.65},
      {"Appendix A, Part I.D, method A, third tier", true, 20000, 5.75, 1183.61, 5.92},
      {"half a cent goes to the even neighbour", false, 1000, 1.2345, 12.34, 1.23},
      {"half a cent goes to the even neighbour", false, 1000, 1.2355, 12.36, 1.24},
  };
  for (const PublishedCase& c : cases) {
    SessionRecord session = DailyAccount();
    session.CompoundDays = c.daily;
    session.CompoundNone = !c.daily;
    ASSERT_FALSE(Calculate(session, c.rate, c.principal, 365)) << c.source;
    EXPECT_DOUBLE_EQ(session.ComputedInterest, c.interest) << c.source;
    EXPECT_DOUBLE_EQ(session.ComputedApy, c.apy) << c.source;
  }
}

TEST(RegularApy, WithdrawalsThatDoNotFillTheTermAreRefusedWithNothingStored) {
  for (bool byMonths : {false, true}) {
    SessionRecord session = DailyAccount();
    session.CompoundDays = !byMonths;
    session.CompoundMonths = byMonths;
    session.ReqWdrwlMonths = true;
    session.WdrwlPeriods = 12;
    session.BtwnReqIntWdrwl = byMonths ? 2 : 1;
    session.PeriodCount = 3;
    const auto refusal = Calculate(session, 5, 1000, byMonths ? 12 : 364);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->text, "Withdrawal periods do not agree with compound periods.");
    EXPECT_EQ(session.ApyVerdict, "");
    EXPECT_EQ(session.PeriodCount, 3);
  }
}

TEST(RegularApy, AfterTheFirstPeriodMonthWithdrawalsNeedNotFillTheTerm) {
  SessionRecord session = DailyAccount();
  session.ReqWdrwlMonths = true;
  session.WdrwlPeriods = 12;
  session.BtwnReqIntWdrwl = 1;
  double principal = 1000;
  double term = 364;
  EXPECT_FALSE(CalcRegularApy(session, 5, 5, principal, term, "1/365", 2).has_value());
  EXPECT_DOUBLE_EQ(session.ComputedInterest, 50.10);
}

struct AbsurdCase {
  const char* what;
  double rate;
  double principal;
  double term;
  double withdrawals;
  const char* factor;
};

TEST(RegularApy, WhatHasNoFiniteResultIsRefusedAtOnce) {
  const AbsurdCase cases[] = {
      {"no principal", 5, 0, 365, 0, "1/365"},
      {"no denominator", 5, 1000, 365, 0, "1/0"},
      {"growth past all numbers", 1e300, 1000, 365, 0, "1/365"},
      {"more than everything lost", -50000, 1000, 365, 0, "1/365"},
      {"more steps than single precision counts", 5, 1000, 1e9, 2, "1/365"},
      {"endless term", 5, 1000, 1e308, 2, "1/365"},
  };
  for (const AbsurdCase& c : cases) {
    SessionRecord session = DailyAccount();
    session.ReqWdrwlDays = c.withdrawals > 0;
    session.WdrwlPeriods = c.withdrawals;
    const auto refusal = Calculate(session, c.rate, c.principal, c.term, c.factor);
    ASSERT_TRUE(refusal.has_value()) << c.what;
    EXPECT_EQ(refusal->text,
              "The entries give a result that cannot be computed. Please correct them.");
    EXPECT_EQ(session.ApyVerdict, "") << c.what;
    EXPECT_EQ(session.DaysInYear, 0) << c.what;
  }
}

TEST(RegularApy, AnIntervalBelowOneIsOneAndAFactorWithoutSlashComputesNothing) {
  SessionRecord session = DailyAccount();
  session.CompoundingDays = 0;
  ASSERT_FALSE(Calculate(session, 5, 1000, 365));
  EXPECT_EQ(session.CompoundingDays, 1);
  EXPECT_DOUBLE_EQ(session.ComputedInterest, 51.27);
  EXPECT_FALSE(Calculate(session, 9, 1000, 365, "365"));
  EXPECT_DOUBLE_EQ(session.ComputedInterest, 51.27);
}

}  // namespace
}  // namespace corvane
