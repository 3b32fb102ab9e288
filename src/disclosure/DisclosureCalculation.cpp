#include "disclosure/DisclosureCalculation.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "disclosure/EntryChecks.h"
#include "disclosure/EntryNumbers.h"
#include "disclosure/EntrySequence.h"
#include "formulas/DisclosedYield.h"

namespace corvane {

namespace {

using Result = Outcome<DisclosureResult>;

std::span<const DisclosureEntry> CompletedEntries(const DisclosureCheck& check) {
  return std::span(check.entries).first(static_cast<std::size_t>(check.completed));
}

Deposit DepositOf(const EntryNumbers& entry) {
  return {.balance = entry.balance.value_or(0),
          .rate = entry.rate.value_or(0),
          .term = entry.term.value_or(0),
          .factorDays = entry.factorDays.value_or(0),
          .begin = entry.Begin(),
          .withdrawals = {entry.withdrawals.value_or(0), entry.distance.value_or(0)}};
}

/// The row of an account or tier that is complete in itself.
ResultRow RowOf(const EntryNumbers& entry, int number, const Yield& yield) {
  const double disclosed = entry.disclosedApy.value_or(0);
  return {.number = number,
          .balance = entry.balance.value_or(0),
          .rates = {entry.rate.value_or(0)},
          .term = entry.term.value_or(0),
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
    const EntryNumbers numbers(entry);
    const Deposit deposit = DepositOf(numbers);
    const auto yield = RegularYield(terms, deposit);
    if (const auto failure = FailureOf(yield)) return *failure;
    result.rows.push_back(RowOf(numbers, ++number, std::get<Yield>(yield)));
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
    const EntryNumbers numbers(entry);
    const Deposit deposit = DepositOf(numbers);
    const auto yield = TieredYield(terms, tiers, deposit);
    if (const auto failure = FailureOf(yield)) return *failure;
    const int tier = TierOfEntry(++number);
    ResultRow row = RowOf(numbers, tier, std::get<Yield>(yield));
    row.rates.clear();
    for (int k = 0; k < tier; ++k) row.rates.push_back(tiers[static_cast<std::size_t>(k)].rate);
    result.interest = row.interest;
    result.rows.push_back(std::move(row));
    result.factorDays = deposit.factorDays;
  }
  return result;
}

}  // namespace

std::vector<Deposit> CompletedDeposits(const DisclosureCheck& check) {
  std::vector<Deposit> deposits;
  std::ranges::transform(
      CompletedEntries(check), std::back_inserter(deposits),
      [](const DisclosureEntry& entry) { return DepositOf(EntryNumbers(entry)); });
  return deposits;
}

Outcome<DisclosureResult> ComputeResult(const DisclosureCheck& check, const AccountTerms& terms) {
  if (check.setup.kind == AccountKind::Stepped) return ComputePeriods(check, terms);
  if (check.setup.kind == AccountKind::TierB) return ComputeTierEnds(check, terms);
  return ComputeEach(check, terms);
}

int YearDaysOf(const DisclosureCheck& check) {
  if (check.setup.kind != AccountKind::TierB || check.completed == 0) return check.setup.year.days;
  return YearDaysOfMethodB(TermsOf(check.setup), DepositOf(EntryNumbers(check.entries.front())));
}

AttemptOutcome AttemptCalculation(DisclosureCheck& check, DisclosureEntry& entry) {
  check.result.reset();
  auto refusal = CheckEntry(check, entry);
  Complete(check.setup, entry, !refusal);
  if (refusal) return {std::move(refusal)};
  KeepEntry(check, entry);
  ++check.completed;
  if (check.setup.IsTiered() && check.completed < EntryCount(check)) return {};
  Result computed = ComputeResult(check, TermsOf(check.setup));
  if (const auto failure = FailureOf(computed)) {
    --check.completed;
    return {RefusalOf(*failure)};
  }
  check.result = std::get<DisclosureResult>(std::move(computed));
  return {std::nullopt, true};
}

std::optional<DisclosureResult> ResultSoFar(const DisclosureCheck& check) {
  if (check.completed == 0) return std::nullopt;
  Result computed = ComputeResult(check, TermsOf(check.setup));
  if (FailureOf(computed)) return std::nullopt;
  return std::get<DisclosureResult>(std::move(computed));
}

}  // namespace corvane
