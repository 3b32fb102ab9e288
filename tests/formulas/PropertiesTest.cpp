#include <gtest/gtest.h>

#include <random>

#include "formulas/DisclosedYield.h"
#include "formulas/InterestByDay.h"

namespace corvane {
namespace {

constexpr int kCases = 5000;

/// Accounts, deposits and balances by chance, the same in every run.
class Chance {
 public:
  int Whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
  double Hundredths(int from, int to) { return Whole(from, to) / 100.0; }

  AccountTerms Terms() {
    static constexpr Unit kUnits[] = {Unit::None, Unit::Days, Unit::Months, Unit::Years};
    AccountTerms terms;
    terms.compounding.unit = kUnits[Whole(0, 3)];
    if (terms.compounding.unit == Unit::Days) terms.compounding.length = Whole(1, 60);
    if (terms.compounding.unit == Unit::Months) terms.compounding.length = 1 << Whole(0, 1);
    const bool isWithdrawn = Whole(0, 1) == 1;
    if (isWithdrawn && terms.compounding.unit == Unit::Days) terms.withdrawal = Unit::Days;
    if (isWithdrawn && terms.compounding.unit == Unit::Months) terms.withdrawal = Unit::Months;
    return terms;
  }

  /// At least 30 days and no longer than some years.
  Deposit DepositOf(const AccountTerms& terms) {
    Deposit deposit{.balance = Hundredths(10000000, 90000000),
                    .rate = Hundredths(1, 2000),
                    .term = static_cast<double>(Whole(30, 900)),
                    .factorDays = 365,
                    .begin = std::chrono::year{2022} / std::chrono::month(unsigned(Whole(1, 12))),
                    .withdrawals = {}};
    const int length = terms.compounding.length;
    if (terms.compounding.unit >= Unit::Months) deposit.term = Whole(1, 6);
    if (terms.compounding.unit == Unit::Days && length > 1) deposit.term = Whole(30, 60);
    if (terms.withdrawal == Unit::None) return deposit;
    const int each = Whole(1, 3), times = Whole(1, 12);
    deposit.term = std::max(each * times, terms.withdrawal == Unit::Days ? 30 : 1);
    deposit.withdrawals = {deposit.term, static_cast<double>(length)};
    return deposit;
  }

 private:
  std::mt19937 random_{20261123};
};

double ApyOf(const AccountTerms& terms, const Deposit& deposit) {
  return std::get<Yield>(RegularYield(terms, deposit)).apy;
}

TEST(Properties, TheApyRisesWithTheRate) {
  Chance chance;
  for (int k = 0; k < kCases; ++k) {
    const AccountTerms terms = chance.Terms();
    Deposit deposit = chance.DepositOf(terms);
    const double before = ApyOf(terms, deposit);
    deposit.rate += 0.1;
    EXPECT_GT(ApyOf(terms, deposit), before) << deposit.rate << " % for " << deposit.term;
  }
}

TEST(Properties, OfOneYearWithoutCompoundingTheApyIsTheRate) {
  Chance chance;
  for (int k = 0; k < kCases; ++k) {
    Deposit deposit = chance.DepositOf({});
    deposit.term = 365;
    EXPECT_DOUBLE_EQ(ApyOf({}, deposit), deposit.rate) << deposit.balance;
  }
}

TEST(Properties, ByMethodATheApyDoesNotChangeWithTheBalance) {
  Chance chance;
  for (int k = 0; k < kCases; ++k) {
    const AccountTerms terms = chance.Terms();
    Deposit deposit = chance.DepositOf(terms);
    const double before = ApyOf(terms, deposit);
    deposit.balance = chance.Hundredths(10000000, 90000000);
    // Half a cent of 100,000 is no hundredth of a percent, but may move one to the other side.
    EXPECT_NEAR(ApyOf(terms, deposit), before, 0.0101) << deposit.rate << " % for " << deposit.term;
  }
}

TEST(Properties, MethodBWithEqualRatesIsTheRegularAccount) {
  Chance chance;
  for (int k = 0; k < kCases; ++k) {
    const AccountTerms terms = chance.Terms();
    const Deposit deposit = chance.DepositOf(terms);
    std::vector<Tier> tiers = {{0, deposit.rate}};
    const int count = chance.Whole(2, 10);
    while (static_cast<int>(tiers.size()) < count) {
      tiers.push_back({tiers.back().above + chance.Hundredths(1, 5000000), deposit.rate});
    }
    const auto tiered = std::get<Yield>(TieredYield(terms, tiers, deposit));
    const auto regular = std::get<Yield>(RegularYield(terms, deposit));
    EXPECT_DOUBLE_EQ(tiered.interest, regular.interest) << deposit.balance;
    EXPECT_DOUBLE_EQ(tiered.apy, regular.apy) << deposit.balance;
  }
}

TEST(Properties, EqualDaysWithoutCompoundingEarnSoManyTimesOneDay) {
  Chance chance;
  for (int k = 0; k < kCases; ++k) {
    StatementAccount account;
    account.kind = static_cast<AccountKind>(chance.Whole(0, 3));
    account.rate = chance.Hundredths(1, 2000);
    account.tiers = {{0, account.rate}, {chance.Hundredths(1, 500000), 7}};
    if (chance.Whole(0, 1) == 1) account.method = BalanceMethod::AverageDailyBalance;
    const double balance = chance.Hundredths(0, 1000000);
    const auto days = static_cast<std::size_t>(chance.Whole(1, 96));
    const double one = InterestByDay(account, {balance}, {account.rate}).interest.total;
    const double all = InterestByDay(account, std::vector<double>(days, balance),
                                     std::vector<double>(days, account.rate))
                           .interest.total;
    EXPECT_NEAR(all, one * static_cast<double>(days), 1e-12 * static_cast<double>(days));
    EXPECT_TRUE(balance == 0 || one > 0);
  }
}

}  // namespace
}  // namespace corvane
