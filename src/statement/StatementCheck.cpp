#include "statement/StatementCheck.h"

#include "account/DailyRateFactor.h"
#include "formulas/AnnualYield.h"
#include "formulas/ApyEarned.h"
#include "statement/EntryChecks.h"
#include "support/Rounding.h"

namespace corvane {

namespace {

std::size_t IndexOf(BalanceColumn column) {
  return static_cast<std::size_t>(column);
}

/// The average lies below a minimum daily balance that stands alone.
bool LeavesInterestToBeTyped(const DailyBalances& daily, double averageBalance) {
  const StatementAccount& account = daily.account;
  return daily.basis != BalanceBasis::LedgerAverage && account.minimumAdb == 0 &&
         averageBalance < account.minimumDailyBalance &&
         account.method == BalanceMethod::DailyBalance;
}

std::optional<Refusal> TakeResult(StatementCheck& check) {
  const double interest = RoundToCents(check.entry.txtIntAmt.Value());
  const double apy = RoundToCents(ApyOf(check, interest));
  const double balance = check.entry.Average(BasisColumn(check.entry.basis)).Value();
  if (!IsAmount(interest) || !IsAmount(balance) || !IsApy(apy)) {
    Refusal refusal = RefusalOf(Failure::NotComputable);
    refusal.field = "txtIntAmt";
    return refusal;
  }
  check.result = {interest, apy, CheckApy(check.entry.txtDClApy.Value(), apy)};
  // The days are dated by the period as it is now.
  if (check.detail) {
    Date& start = check.detail->daily.start;
    start = PeriodStart(check.entry, start);
  }
  return std::nullopt;
}

}  // namespace

StatementCheck NewStatementCheck() {
  StatementCheck check;
  check.entry.method = BalanceMethod::AverageDailyBalance;
  return check;
}

CheckOutcome ContinueSetup(StatementCheck& check, StatementSetup& choices) {
  CheckOutcome outcome{.notice = {}, .refusal = CheckSetup(choices)};
  if (outcome.refusal) return outcome;
  if (choices.year.days == 366 && !choices.year.countsLeapDay) {
    outcome.notice = LeapDayNotice();
    choices.year.countsLeapDay = true;
  }
  if (choices.txtDCompounding.IsEmpty()) choices.txtDCompounding.text = "0";
  if (choices.year.days != check.setup.year.days) check.entry.txtDRFactor.text.clear();
  check.setup = choices;
  return outcome;
}

StatementAccount AccountOf(const StatementCheck& check) {
  const StatementSetup& setup = check.setup;
  const StatementEntry& entry = check.entry;
  StatementAccount account;
  account.kind = setup.kind;
  if (entry.UsesAdb()) account.method = BalanceMethod::AverageDailyBalance;
  account.compoundingDays = CompoundingDays(setup);
  account.factorDays = FactorDays(entry.txtDRFactor.text).value_or(setup.year.days);
  account.rate = entry.txtIntRate.Value();
  account.minimumAdb = entry.txtMinADB.Value();
  account.minimumDailyBalance = entry.txtMinDBal.Value();
  if (IsTiered(setup.kind)) account.tiers = TiersOf(check.tiers);
  return account;
}

void FollowChanges(StatementCheck& check) {
  RecountPeriod(check.setup.year, check.entry);
  Field& interest = check.entry.txtIntAmt;
  if (!interest.workedOut) return;
  interest.text = check.handed.account == AccountOf(check) ? check.handed.text : "";
}

CheckOutcome StartCompute(StatementCheck& check, BalanceColumn column) {
  CheckOutcome outcome = CheckEntries(check);
  if (!outcome.refusal) outcome.refusal = CheckBeforeCompute(check);
  const bool takesInterest = !outcome.refusal && GivesInterest(check.entry.basis, column);
  if (takesInterest) check.entry.txtIntAmt.text = "0.00";
  return outcome;
}

DailyBalances DaysOf(const StatementCheck& check, BalanceColumn column, const Date& today) {
  DailyBalances daily{.account = AccountOf(check),
                      .column = column,
                      .basis = check.entry.basis,
                      .start = PeriodStart(check.entry, today),
                      .days = check.days[IndexOf(column)]};
  FillRates(daily);
  daily.days.resize(static_cast<std::size_t>(check.entry.Days(column).Value()));
  return daily;
}

void FinishCompute(StatementCheck& check, const DailyBalances& daily,
                   const ComputedDays& computed) {
  check.detail = {daily, computed.averageBalance};
  check.days[IndexOf(daily.column)] = daily.days;
  check.entry.Average(daily.column).text = FormatFixed2(computed.averageBalance);
  if (!computed.interest) return;
  check.handed = {daily.account, FormatFixed2(*computed.interest), *computed.interest};
  Field& interest = check.entry.txtIntAmt;
  interest.workedOut = !LeavesInterestToBeTyped(daily, computed.averageBalance);
  interest.text = interest.workedOut ? check.handed.text : "";
}

StatementCheck CancelledCompute(StatementCheck before, const DailyBalances& opened) {
  // What the checks filled in before the window opened stays filled in.
  CheckEntries(before);
  if (before.days[IndexOf(opened.column)].size() != opened.days.size()) before.detail.reset();
  return before;
}

CheckOutcome CalculateStatement(StatementCheck& check) {
  check.result.reset();
  CheckOutcome outcome = CheckEntries(check);
  if (!outcome.refusal) outcome.refusal = CheckBeforeResult(check);
  if (!outcome.refusal) outcome.refusal = TakeResult(check);
  return outcome;
}

int YearDaysOf(const StatementCheck& check) {
  return check.setup.year.countsLeapDay ? 366 : 365;
}

double ApyOf(const StatementCheck& check, double interest) {
  const StatementEntry& entry = check.entry;
  const BalanceColumn column = BasisColumn(entry.basis);
  const double balance = entry.Average(column).Value();
  const double days = entry.Days(column).Value();
  const double yearDays = YearDaysOf(check);
  if (!check.setup.additionalFormula) return ApyEarned(interest, balance, days, yearDays);
  return ApyEarnedAdditional(interest, balance, days, yearDays, check.setup.txtDCPeriod.Value());
}

const InterestDetail* DetailOf(const StatementCheck& check) {
  if (!check.detail) return nullptr;
  const auto& [daily, averageBalance] = *check.detail;
  const StatementEntry& entry = check.entry;
  const bool sameBasis = daily.basis == entry.basis && BasisUses(entry.basis, daily.column);
  const bool stands = entry.Days(daily.column).Value() == static_cast<double>(daily.days.size()) &&
                      entry.Average(daily.column).Value() == averageBalance;
  return sameBasis && stands && daily.account == AccountOf(check) ? &*check.detail : nullptr;
}

}  // namespace corvane
