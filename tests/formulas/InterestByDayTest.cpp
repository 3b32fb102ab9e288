#include "formulas/InterestByDay.h"

#include "CaseTable.h"
#include "formulas/DayInterest.h"

namespace corvane {
namespace {

using enum AccountKind;

const std::vector<Tier> kTiers = {{0, 1.05}, {1000, 2.5}, {2500, 4.1265}, {15000, 5.75}};

StatementAccount AccountOfKind(AccountKind kind) {
  StatementAccount account;
  account.kind = kind;
  account.rate = 3.65;
  if (IsTiered(kind)) account.tiers = kTiers;
  return account;
}

StatementAccount AccountOfRow(const CaseRow& row) {
  static const std::map<std::string, AccountKind> kinds = {
      {"regular", Regular}, {"stepped", Stepped}, {"tierA", TierA}, {"tierB", TierB}};
  StatementAccount account = AccountOfKind(kinds.at(row.Text("kind")));
  account.method = row.Text("method") == "adb" ? BalanceMethod::AverageDailyBalance
                                               : BalanceMethod::DailyBalance;
  const std::string minimums = row.Text("minimums");
  if (minimums == "adb" || minimums == "both") account.minimumAdb = 1000;
  if (minimums == "daily" || minimums == "both") account.minimumDailyBalance = 500;
  account.compoundingDays = row.Whole("every");
  account.factorDays = row.Text("pattern") == "varied" ? 365 : 366;
  return account;
}

TEST(InterestByDay, EveryKindOfAccountAgreesWithTheReference) {
  const auto days = ReadCases("statement_days.csv");
  for (const CaseRow& row : ReadCases("interest_by_day.csv")) {
    std::vector<double> balances, rates;
    for (std::size_t day = 0; day < static_cast<std::size_t>(row.Whole("days")); ++day) {
      balances.push_back(days.at(day).Number(row.Text("pattern")));
      rates.push_back(days.at(day).Number("steprate"));
    }
    const auto computed = InterestByDay(AccountOfRow(row), balances, rates);
    EXPECT_EQ(FormatFixed2(computed.averageBalance), row.Text("adb")) << row.line;
    EXPECT_NEAR(computed.interest.total, row.Number("interest"), 1e-10) << row.line;
    double sum = 0;
    for (double interest : computed.interest.ofDay) sum += interest;
    EXPECT_NEAR(sum, computed.interest.total, 1e-10) << row.line;
  }
}

TEST(InterestByDay, AnAverageOfExactlyHalfACentGoesToTheEvenCent) {
  // Ten days of each and six more of the last: 189,704,480.16 in 96 days are 1,976,088.335 a day.
  std::vector<double> balances;
  for (double balance :
       {10000000.0, 5523.01, 3088835.58, 0.0, 5869298.51, -50.0, 1000.01, 0.0, 5190.9}) {
    balances.insert(balances.end(), 10, balance);
  }
  balances.insert(balances.end(), 6, 1000.01);
  EXPECT_DOUBLE_EQ(AverageDailyBalance(balances), 1976088.34);
}

TEST(InterestByDay, ABalanceEqualToABoundBelongsToTheLowerTier) {
  const std::pair<double, double> rates[] = {
      {-5, 1.05}, {1000, 1.05}, {1000.01, 2.5}, {15000, 4.1265}, {15000.01, 5.75}};
  for (const auto& [balance, rate] : rates) {
    EXPECT_EQ(RateOfDay(AccountOfKind(TierA), balance, 0), rate) << balance;
  }
}

}  // namespace
}  // namespace corvane
