#include "statement/DailyHandBack.h"

#include <cmath>

#include "account/FormulaRefusals.h"
#include "account/SessionRecord.h"
#include "formulas/InterestByDay.h"

namespace corvane {

namespace {

void StoreTable(Table<double>& table, const std::vector<double>& values) {
  table.Resize(1, static_cast<int>(values.size()));
  for (int day = 1; day <= table.Last(); ++day) {
    table.Set(day, values[static_cast<std::size_t>(day - 1)]);
  }
}

bool HasBothMinimums(const StatementAccount& account) {
  return account.minimumAdb > 0 && account.minimumDailyBalance > 0;
}

bool IsLedgerOfBasis2(const SessionRecord& session, const DailyBalances& daily) {
  return daily.column == BalanceColumn::Ledger && session.BalanceBasisCode == 2;
}

double InterestHandedBack(const DailyBalances& daily, const StatementInterest& computed) {
  const bool withheld =
      HasBothMinimums(daily.account) && daily.account.method == BalanceMethod::DailyBalance;
  return withheld || computed.averageBalance == 0 ? 0 : computed.interest.total;
}

StatementInterest ComputedInterestOf(const DailyBalances& daily) {
  StatementAccount account = daily.account;
  if (HasBothMinimums(account)) account.method = BalanceMethod::AverageDailyBalance;
  return InterestByDay(account, BalancesOf(daily), RatesOf(daily));
}

bool IsFinite(const StatementInterest& computed) {
  return std::isfinite(computed.averageBalance) && std::isfinite(computed.interest.total);
}

void MarkDetail(SessionRecord& session, const DailyBalances& daily) {
  session.DetailData = true;
  session.DetailLedger = daily.column == BalanceColumn::Ledger;
  session.DetailAdb = session.ComputedAdb;
  session.DetailDays = session.StatementDays;
}

}  // namespace

void StoreDays(SessionRecord& session, DailyBalances& daily) {
  session.CurrentDay = session.PeriodStart;
  FillRates(daily);
  const bool ledger = daily.column == BalanceColumn::Ledger;
  StoreTable(ledger ? session.LedgerDayBalances : session.CollectedDayBalances, BalancesOf(daily));
  StoreTable(ledger ? session.LedgerDayRates : session.CollectedDayRates, RatesOf(daily));
  (ledger ? session.LedgerDaysEntered : session.CollectedDaysEntered) = true;
}

std::optional<Refusal> ComputeAdb(SessionRecord& session, DailyBalances& daily) {
  FillRates(daily);
  const StatementInterest computed = ComputedInterestOf(daily);
  if (!IsFinite(computed)) return NotComputable();
  StoreDays(session, daily);
  daily.interest = computed.interest.ofDay;
  session.ComputedAdb = computed.averageBalance;
  if (!IsLedgerOfBasis2(session, daily)) {
    session.InterestAmount = InterestHandedBack(daily, computed);
  }
  MarkDetail(session, daily);
  return std::nullopt;
}

bool DetailFits(const SessionRecord& session, const StatementEntry& entry) {
  const BalanceColumn column =
      session.DetailLedger ? BalanceColumn::Ledger : BalanceColumn::Collected;
  return session.DetailData && session.DetailLedger == session.LedgerBasis &&
         session.DetailDays == session.StatementDays && BasisUses(session, column) &&
         DaysInUse(entry, column).Value() == session.DetailDays &&
         AdbField(entry, column).Value() == session.DetailAdb;
}

}  // namespace corvane
