#include "formulas/DisclosedYield.h"

#include <gtest/gtest.h>

#include "CaseTable.h"
#include "formulas/TermInterest.h"
#include "support/Rounding.h"

namespace corvane {
namespace {

std::chrono::year_month Month(double year, double month) {
  return std::chrono::year{int(year)} / std::chrono::month{unsigned(month)};
}

Deposit DepositOf(const CaseRow& row) {
  return {.balance = 0,
          .rate = 0,
          .term = row.Number("term"),
          .factorDays = row.Number("factor"),
          .begin = Month(row.Number("year"), row.Number("month")),
          .withdrawals = {row.Number("w"), row.Number("m")}};
}

void ExpectYield(const Yield& yield, const CaseRow& row) {
  EXPECT_NEAR(yield.interest, row.Number("interest"), 1e-9);
  EXPECT_NEAR(yield.apy, row.Number("apy"), 1e-9);
}

TEST(DisclosedYield, RegularAccountsAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("regular.csv")) {
    SCOPED_TRACE(row.line);
    Deposit deposit = DepositOf(row);
    deposit.balance = row.Number("balance");
    deposit.rate = row.Number("rate");
    ExpectYield(std::get<Yield>(RegularYield(TermsOf(row), deposit)), row);
    const auto term = InterestOfTerm(TermsOf(row), deposit, Fill::Demanded);
    if (row.Text("withdrawal") == "none" || row.Text("unit") != "days") {
      EXPECT_EQ(std::get<TermInterest>(term).length, row.Number("counted"));
    }
  }
}

TEST(DisclosedYield, SteppedAccountsAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("stepped.csv")) {
    SCOPED_TRACE(row.line);
    const auto rates = row.List("rates");
    std::vector<Deposit> periods;
    for (std::size_t k = 0; k < rates.size(); ++k) {
      periods.push_back({.balance = 0,
                         .rate = rates[k],
                         .term = row.List("terms")[k],
                         .factorDays = row.Number("factor"),
                         .begin = Month(row.List("years")[k], row.List("months")[k]),
                         .withdrawals = {row.List("w")[k], row.Number("m")}});
    }
    const auto result =
        std::get<SteppedYield>(SteppedYieldOf(TermsOf(row), row.Number("balance"), periods));
    ExpectYield(result.whole, row);
    ASSERT_EQ(result.interest.size(), rates.size());
    for (std::size_t k = 0; k < rates.size(); ++k) {
      EXPECT_EQ(RoundToCents(result.interest[k]), row.List("interests")[k]);
    }
  }
}

TEST(DisclosedYield, PeriodsThatEarnLessThanHalfACentCount) {
  // 100 (1 + 0.001 / 365) ^ 15 - 100 is 0.0041 in each of ten periods.
  const Deposit period{
      .balance = 0, .rate = 0.1, .term = 15, .factorDays = 365, .begin = {}, .withdrawals = {}};
  const std::vector<Deposit> periods(10, period);
  const AccountTerms daily{.compounding = {Unit::Days, 1}, .withdrawal = Unit::None, .year = {}};
  const auto result = std::get<SteppedYield>(SteppedYieldOf(daily, 100, periods));
  EXPECT_DOUBLE_EQ(result.whole.interest, 0.04);
  EXPECT_DOUBLE_EQ(result.whole.apy, 0.10);
}

TEST(DisclosedYield, AnExactHalfOfACentIsKeptInALargeBalance) {
  // Twelve times (2 at 5.75 % + 1,000 at 5 % + 10,000,000 at 5 %) for 30 days of 360: 500,050.115.
  const AccountTerms monthly{.compounding = {Unit::Days, 30}, .withdrawal = Unit::Days, .year = {}};
  const std::vector<Tier> tiers = {{0, 5.75}, {2, 5}};
  const Deposit deposit{.balance = 10001002,
                        .rate = 0,
                        .term = 12,
                        .factorDays = 360,
                        .begin = {},
                        .withdrawals = {12, 0}};
  EXPECT_DOUBLE_EQ(std::get<Yield>(TieredYield(monthly, tiers, deposit)).interest, 500050.12);
}

TEST(DisclosedYield, TierEndsByMethodBAgreeWithTheReference) {
  for (const CaseRow& row : ReadCases("tiers.csv")) {
    SCOPED_TRACE(row.line);
    std::vector<double> bounds = row.List("bounds");
    bounds.insert(bounds.begin(), 0);
    std::vector<Tier> tiers;
    for (double rate : row.List("rates")) tiers.push_back({bounds[tiers.size()], rate});
    Deposit deposit = DepositOf(row);
    deposit.balance = row.Number("principal");
    ExpectYield(std::get<Yield>(TieredYield(TermsOf(row), tiers, deposit)), row);
  }
}

/// Daily compounding in a year of 365 days; 1,000 at 5 % for 365 days.
struct Example {
  AccountTerms terms{.compounding = {Unit::Days, 1}, .withdrawal = Unit::None, .year = {}};
  Deposit deposit{.balance = 1000,
                  .rate = 5,
                  .term = 365,
                  .factorDays = 365,
                  .begin = Month(2023, 1),
                  .withdrawals = {}};
};

TEST(DisclosedYield, WithdrawalPeriodsHaveToFillTheTermOfTheFirstPeriod) {
  auto [terms, deposit] = Example{};
  const std::vector<Tier> tiers = {{0, 5}};
  terms.withdrawal = Unit::Months;
  deposit.withdrawals = {12, 1};
  EXPECT_DOUBLE_EQ(std::get<Yield>(RegularYield(terms, deposit)).interest, 50.10);
  deposit.term = 364;
  const auto disagree = Failure::WithdrawalPeriodsDisagree;
  EXPECT_EQ(FailureOf(RegularYield(terms, deposit)), disagree);
  EXPECT_EQ(FailureOf(TieredYield(terms, tiers, deposit)), disagree);
  std::vector<Deposit> periods = {deposit, deposit};
  EXPECT_EQ(FailureOf(SteppedYieldOf(terms, 1000, periods)), disagree);
  periods.front().term = 365;
  EXPECT_FALSE(FailureOf(SteppedYieldOf(terms, 1000, periods)));
  terms.compounding.unit = Unit::Months;
  deposit.term = 12;
  deposit.withdrawals.apart = 2;
  EXPECT_EQ(FailureOf(RegularYield(terms, deposit)), disagree);
}

TEST(DisclosedYield, WhatBreaksAPreconditionOrHasNoFiniteResultIsNotComputable) {
  const std::pair<const char*, void (*)(Example&)> cases[] = {
      {"no balance", [](Example& e) { e.deposit.balance = 0; }},
      {"no factor", [](Example& e) { e.deposit.factorDays = 0; }},
      {"no term", [](Example& e) { e.deposit.term = 0; }},
      {"no interval", [](Example& e) { e.terms.compounding.length = 0; }},
      {"a balance that no account has", [](Example& e) { e.deposit.balance = 1e13; }},
      {"an APY that no account has", [](Example& e) { e.deposit.rate = 700; }},
      {"more than everything lost", [](Example& e) { e.deposit.rate = -50000; }},
      {"endless term", [](Example& e) { e.deposit.term = 1e308; }},
      {"withdrawals without a number", [](Example& e) { e.terms.withdrawal = Unit::Days; }},
      {"too many steps",
       [](Example& e) {
         e.terms.withdrawal = Unit::Days;
         e.deposit.withdrawals.periods = 2;
         e.deposit.term = 1e9;
       }},
      {"months that begin nowhere",
       [](Example& e) {
         e.terms.compounding.unit = Unit::Months;
         e.deposit.begin = {};
       }},
  };
  for (const auto& [what, change] : cases) {
    Example example;
    change(example);
    const auto& [terms, deposit] = example;
    const std::vector<Deposit> periods = {deposit};
    const std::vector<Tier> tiers = {{0, deposit.rate}};
    EXPECT_EQ(FailureOf(RegularYield(terms, deposit)), Failure::NotComputable) << what;
    EXPECT_EQ(FailureOf(SteppedYieldOf(terms, deposit.balance, periods)), Failure::NotComputable)
        << what;
    EXPECT_EQ(FailureOf(TieredYield(terms, tiers, deposit)), Failure::NotComputable) << what;
  }
}

}  // namespace
}  // namespace corvane
