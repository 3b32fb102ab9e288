#include "disclosure/DisclosureCalculation.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "account/DailyRateFactor.h"
#include "disclosure/EntryChecks.h"
#include "disclosure/EntrySequence.h"
#include "formulas/DisclosedYield.h"

namespace corvane {

namespace {

using Result = Outcome<DisclosureResult>;

std::span<const DisclosureEntry> CompletedEntries(const DisclosureCheck& check) {
  return std::span(check.entries).first(static_cast<std::size_t>(check.completed));
}

Deposit DepositOf(const DisclosureEntry& entry) {
  return {.balance = entry.txtBal.Value(),
          .rate = entry.txtIntRateA.Value(),
          .term = entry.txtTerm.Value(),
          .factorDays = FactorDays(entry.txtDailyRateFactor.text).value_or(0),
          .begin = BeginOf(entry),
          .withdrawals = {entry.txtWdrwlPeriods.Value(), entry.txtBtwnReqIntWdrwl.Value()}};
}

/// The row of an account or tier that is complete in itself.
ResultRow RowOf(const DisclosureEntry& entry, int number, const Yield& yield) {
  const double disclosed = entry.txtDiscAPY.Value();
  return {.number = number,
          .balance = entry.txtBal.Value(),
          .rates = {entry.txtIntRateA.Value()},
          .term = entry.txtTerm.Value(),
          .interest = yield.interest,
          .disclosedApy = disclosed,
          .apy = yield.apy,
          .verdict = CheckApy(disclosed, yield.apy)};
}

/// A regular account, or the completed tiers by method A.
Result ComputeEach(const DisclosureCheck& check, const AccountTerms& terms) {
  DisclosureResult result;
  int number = 0;
  for (const DisclosureEntry& entry : CompletedEntries(check)) {
    const Deposit deposit = DepositOf(entry);
    const auto yield = RegularYield(terms, deposit);
    if (const auto failure = FailureOf(yield)) return *failure;
    result.rows.push_back(RowOf(entry, ++number, std::get<Yield>(yield)));
    result.interest = result.rows.back().interest;
    result.factorDays = deposit.factorDays;
  }
  return result;
}

ResultRow PeriodRow(const DisclosureCheck& check, int number, double interest) {
  const DisclosureEntry& period = check.entries.at(static_cast<std::size_t>(number - 1));
  ResultRow row{.number = number,
                .balance = std::nullopt,
                .rates = {period.txtIntRateA.Value()},
                .term = period.txtTerm.Value(),
                .interest = interest,
                .disclosedApy = check.entries.front().txtDiscAPY.Value(),
                .apy = std::nullopt,
                .verdict = std::nullopt};
  if (number == 1) row.balance = period.txtBal.Value();
  return row;
}

/// The completed periods of a stepped account, anew.
Result ComputePeriods(const DisclosureCheck& check, const AccountTerms& terms) {
  const std::vector<Deposit> periods = CompletedDeposits(check);
  if (periods.empty()) return Failure::NotComputable;
  const auto computed = SteppedYieldOf(terms, periods.front().balance, periods);
  if (const auto failure = FailureOf(computed)) return *failure;
  const auto& [interest, whole] = std::get<SteppedYield>(computed);
  DisclosureResult result{{}, whole.interest, periods.back().factorDays};
  for (double ofPeriod : interest) {
    const auto number = static_cast<int>(result.rows.size()) + 1;
    result.rows.push_back(PeriodRow(check, number, ofPeriod));
  }
  ResultRow& newest = result.rows.back();
  newest.apy = whole.apy;
  newest.verdict = CheckApy(newest.disclosedApy, whole.apy);
  return result;
}

/// The completed tier ends by method B. Term, factor and withdrawals were typed with the first
/// entry and stand in all.
Result ComputeTierEnds(const DisclosureCheck& check, const AccountTerms& terms) {
  const std::vector<Tier> tiers = TiersOf(check.tiers);
  DisclosureResult result;
  int number = 0;
  for (const DisclosureEntry& entry : CompletedEntries(check)) {
    const Deposit deposit = DepositOf(entry);
    const auto yield = TieredYield(terms, tiers, deposit);
    if (const auto failure = FailureOf(yield)) return *failure;
    const int tier = TierOfEntry(++number);
    ResultRow row = RowOf(entry, tier, std::get<Yield>(yield));
    row.rates.clear();
    for (int k = 0; k < tier; ++k) row.rates.push_back(tiers[static_cast<std::size_t>(k)].rate);
    result.rows.push_back(row);
    result.interest = row.interest;
    result.factorDays = deposit.factorDays;
  }
  return result;
}

}  // namespace

std::vector<Deposit> CompletedDeposits(const DisclosureCheck& check) {
  std::vector<Deposit> deposits;
  std::ranges::transform(CompletedEntries(check), std::back_inserter(deposits), DepositOf);
  return deposits;
}

Outcome<DisclosureResult> ComputeResult(const DisclosureCheck& check, const AccountTerms& terms) {
  if (check.setup.kind == AccountKind::Stepped) return ComputePeriods(check, terms);
  if (check.setup.kind == AccountKind::TierB) return ComputeTierEnds(check, terms);
  return ComputeEach(check, terms);
}

AttemptOutcome AttemptCalculation(DisclosureCheck& check, DisclosureEntry& entry) {
  check.result.reset();
  auto refusal = CheckEntry(check, entry);
  entry = Completed(check, entry);
  if (refusal) return {std::move(refusal)};
  KeepEntry(check, entry);
  ++check.completed;
  if (check.setup.IsTiered() && check.completed < EntryCount(check)) return {};
  const Result computed = ComputeResult(check, TermsOf(check.setup));
  if (const auto failure = FailureOf(computed)) {
    --check.completed;
    return {RefusalOf(*failure)};
  }
  check.result = std::get<DisclosureResult>(computed);
  return {std::nullopt, true};
}

std::optional<DisclosureResult> ResultSoFar(const DisclosureCheck& check) {
  if (check.completed == 0) return std::nullopt;
  Result computed = ComputeResult(check, TermsOf(check.setup));
  if (FailureOf(computed)) return std::nullopt;
  return std::get<DisclosureResult>(std::move(computed));
}

}  // namespace corvane
