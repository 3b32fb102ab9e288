#include "statement/InterestByDay.h"

#include <gtest/gtest.h>

#include <numeric>

#include "statement/DayRate.h"
#include "statement/ReferenceTable.h"
#include "support/NumberText.h"

namespace corvane {
namespace {

using Row = ReferenceRow;

const std::vector<BalanceTier> kTiers = {{0, 1.05}, {1000, 2.5}, {2500, 4.1265}, {15000, 5.75}};

StatementAccount AccountOfRow(const Row& row) {
  static const std::map<std::string, RateKind> kinds = {{"regular", RateKind::Regular},
                                                        {"stepped", RateKind::Stepped},
                                                        {"tierA", RateKind::TierA},
                                                        {"tierB", RateKind::TierB}};
  StatementAccount account;
  account.kind = kinds.at(row.at("kind"));
  account.method =
      row.at("method") == "adb" ? BalanceMethod::AverageDailyBalance : BalanceMethod::DailyBalance;
  const std::string& minimums = row.at("minimums");
  if (minimums == "adb" || minimums == "both") account.minimumAdb = 1000;
  if (minimums == "daily" || minimums == "both") account.minimumDailyBalance = 500;
  account.compoundingDays = std::stoi(row.at("every"));
  account.daysInYear = row.at("pattern") == "varied" ? 365 : 366;
  account.rate = 3.65;
  account.tiers = IsTiered(account.kind) ? kTiers : std::vector<BalanceTier>{};
  return account;
}

std::vector<double> FirstDays(const std::vector<Row>& rows, const std::string& column, int days) {
  std::vector<double> values;
  for (int day = 0; day < days; ++day) {
    values.push_back(NumericValue(rows.at(static_cast<std::size_t>(day)).at(column)));
  }
  return values;
}

TEST(InterestByDay, EveryKindOfAccountAgreesWithTheReference) {
  const auto days = ReadReferenceTable("statement_days.csv");
  for (const Row& row : ReadReferenceTable("interest_by_day.csv")) {
    const int count = std::stoi(row.at("days"));
    const StatementInterest computed =
        InterestByDay(AccountOfRow(row), FirstDays(days, row.at("pattern"), count),
                      FirstDays(days, "steprate", count));
    const std::string input = testing::PrintToString(row);
    EXPECT_EQ(FormatFixed2(computed.averageBalance), row.at("adb")) << input;
    EXPECT_NEAR(computed.interest.total, NumericValue(row.at("interest")), 1e-10) << input;
    const auto& ofDay = computed.interest.ofDay;
    EXPECT_EQ(ofDay.size(), static_cast<std::size_t>(count)) << input;
    EXPECT_NEAR(std::accumulate(ofDay.begin(), ofDay.end(), 0.0), computed.interest.total, 1e-10)
        << input;
  }
}

StatementAccount Regular(double rate, int compoundingDays) {
  StatementAccount account;
  account.rate = rate;
  account.compoundingDays = compoundingDays;
  return account;
}

TEST(InterestByDay, ThirtyDaysOfAThousandAtADailyRateOfOneTenThousandthEarnThree) {
  const auto result = InterestByDay(Regular(3.65, 0), std::vector<double>(30, 1000), {});
  EXPECT_EQ(result.averageBalance, 1000);
  EXPECT_NEAR(result.interest.total, 3.00, 1e-12);
}

TEST(InterestByDay, CompoundingEveryThirtyDaysAddsTheTotalOnDays31And61Only) {
  const auto ofDay = InterestByDay(Regular(3.65, 30), std::vector<double>(62, 1000), {}).interest;
  EXPECT_NEAR(ofDay.ofDay[29], 0.1, 1e-12);
  EXPECT_NEAR(ofDay.ofDay[30], 0.0001 * 1003, 1e-12);
  EXPECT_NEAR(ofDay.ofDay[31], 0.1, 1e-12);
  EXPECT_NEAR(ofDay.ofDay[60], 0.0001 * (1000 + 3 + 3.0003), 1e-12);
}

TEST(InterestByDay, ADayBelowTheMinimumOrNegativeEarnsNothingWhateverTheAccount) {
  for (RateKind kind : {RateKind::Regular, RateKind::Stepped, RateKind::TierA, RateKind::TierB}) {
    StatementAccount account = Regular(5, 0);
    account.kind = kind;
    if (IsTiered(kind)) account.tiers = kTiers;
    account.minimumDailyBalance = 500;
    const auto ofDay = InterestByDay(account, {499.99, 500, -900}, {5, 5, 5}).interest.ofDay;
    EXPECT_EQ(ofDay[0], 0);
    EXPECT_GT(ofDay[1], 0);
    account.minimumDailyBalance = 0;
    EXPECT_EQ(InterestByDay(account, {-900}, {5}).interest.total, 0) << "a debt costs nothing";
  }
}

TEST(InterestByDay, ABalanceEqualToABoundBelongsToTheLowerTier) {
  StatementAccount account;
  account.kind = RateKind::TierA;
  account.tiers = kTiers;
  const std::pair<double, double> rates[] = {{-5, 1.05},     {1000, 1.05},    {1000.01, 2.5},
                                             {2500, 2.5},    {15000, 4.1265}, {15000.01, 5.75},
                                             {9999999, 5.75}};
  for (const auto& [balance, rate] : rates) {
    EXPECT_EQ(RateOfDay(account, balance, 0), rate) << balance;
  }
}

}  // namespace
}  // namespace corvane
