#include "statement/EntryChecks.h"

#include "account/DailyRateFactor.h"
#include "account/OrderedChecks.h"

namespace corvane {

namespace {

using Entry = StatementEntry;

/// What the checks look at.
struct Checked {
  const StatementSetup& setup;
  const StatementEntry& entry;

  bool IsStepped() const { return setup.kind == AccountKind::Stepped; }
  bool UsesDailyBalance() const { return entry.method == BalanceMethod::DailyBalance; }
  double MinimumAdb() const { return entry.txtMinADB.Value(); }
  double MinimumDailyBalance() const { return entry.txtMinDBal.Value(); }
  bool IsOpen(const char* control) const { return corvane::IsOpen(entry, control); }
};

// Who takes part.

bool Everyone(const Checked&) {
  return true;
}
bool Stepped(const Checked& c) {
  return c.IsStepped();
}
bool AdbMethod(const Checked& c) {
  return c.entry.UsesAdb();
}
bool AdbMethodUnlessStepped(const Checked& c) {
  return c.entry.UsesAdb() && !c.IsStepped();
}
/// A stepped account with the additional formula has a message of its own, after these checks.
bool DailyMethodOfSteppedOrFormula(const Checked& c) {
  return c.UsesDailyBalance() && c.IsStepped() != c.setup.additionalFormula;
}
template <BalanceColumn column>
bool ApyRestsOn(const Checked& c) {
  return BasisColumn(c.entry.basis) == column;
}

// What is wrong.

bool HasBothMinimums(const Checked& c) {
  return c.MinimumAdb() > 0 && c.MinimumDailyBalance() > 0;
}
bool HasMinimumAdbOnly(const Checked& c) {
  return c.MinimumAdb() > 0 && c.MinimumDailyBalance() == 0;
}
bool HasMinimumDailyBalanceOnly(const Checked& c) {
  return c.MinimumAdb() == 0 && c.MinimumDailyBalance() > 0;
}
template <Field Entry::*AField>
bool NoAmount(const Checked& c) {
  const Field& amount = c.entry.*AField;
  return !amount.IsNumber() || amount.Value() < 0;
}
template <Field Entry::*AField>
bool NotAboveZero(const Checked& c) {
  return !((c.entry.*AField).Value() > 0);
}
bool FactorUnusable(const Checked& c) {
  const auto days = FactorDays(c.entry.txtDRFactor.text);
  return !days || *days > 366;
}
bool NoMethod(const Checked& c) {
  return !c.entry.method;
}
template <Field Entry::*AField>
bool NoPeriod(const Checked& c) {
  const double days = (c.entry.*AField).Value();
  return !IsWhole(days) || days < 1 || days > kLongestPeriod;
}
template <Field Entry::*Days, Field Entry::*Average>
bool BothZero(const Checked& c) {
  return (c.entry.*Days).Value() == 0 && (c.entry.*Average).Value() == 0;
}

constexpr const char* kMinimumsNotValid =
    "Values entered for Minimum ADB and Minimum Daily Balance \n"
    "        are not valid for the selected Statement Type and \n"
    "                            Interest Calculation Method";
constexpr const char* kDaysRange = "The valid Ledger Days range is 1 to 96, inclusive";

constexpr OrderedCheck<Checked> kNotices[] = {
    {Everyone, HasBothMinimums, kMinimumsNotValid, "txtMinADB"},
};

constexpr OrderedCheck<Checked> kMinimumChecks[] = {
    {AdbMethodUnlessStepped, HasMinimumDailyBalanceOnly, kMinimumsNotValid, "txtMinADB"},
    {DailyMethodOfSteppedOrFormula, HasMinimumAdbOnly, kMinimumsNotValid, "txtMinADB"},
    {Stepped, AdbMethod,
     "Daily Balance Method is the only valid method for Variable rate accounts ", "optDailyBal"},
};

constexpr OrderedCheck<Checked> kFieldChecks[] = {
    {Everyone, NoAmount<&Entry::txtMinADB>, "Please enter a valid Minimum ADB amount or Zero",
     "txtMinADB"},
    {Everyone, NoAmount<&Entry::txtMinDBal>, "Please enter a valid Minimum daily balance or Zero",
     "txtMinDBal"},
    {Everyone, NotAboveZero<&Entry::txtDClApy>, "Please enter a valid Disclosed APY percentage",
     "txtDClApy"},
    {Everyone, NotAboveZero<&Entry::txtIntRate>, "Please enter a valid Interest Rate",
     "txtIntRate"},
    {Everyone, FactorUnusable, "Please enter a valid Daily Rate Factor", "txtDRFactor"},
    {Everyone, NoMethod, "Choose one of the types of the Interest Calculation.", "optDailyBal"},
    {Everyone, NoPeriod<&Entry::txtLedgerdays>, kDaysRange, "txtLedgerdays"},
    {Everyone, NoPeriod<&Entry::txtColDays>, kDaysRange, "txtColDays"},
    {Everyone, BothZero<&Entry::txtLedgerdays, &Entry::txtADBLedgerBalance>,
     "Ledger Days and Ledger ADB must not both be Zero", "txtLedgerdays"},
    {Everyone, BothZero<&Entry::txtColDays, &Entry::txtADBCollectedBalance>,
     "Collected Days and Collected ADB must not both be Zero", "txtColDays"},
};

constexpr OrderedCheck<Checked> kComputeChecks[] = {
    {Stepped, HasMinimumAdbOnly,
     "                       For Variable Rate Accounts\n"
     "Minimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
     "                             Please try again",
     "txtMinADB"},
};

constexpr OrderedCheck<Checked> kResultChecks[] = {
    {Stepped, HasMinimumAdbOnly,
     "For Variable Rate Accounts\nMinimum ADB > 0 and Minimum Daily Balance = 0 is invalid\n"
     "Please try again",
     "txtMinADB"},
    {ApyRestsOn<BalanceColumn::Ledger>, NotAboveZero<&Entry::txtADBLedgerBalance>,
     "Please enter an ADB Ledger balance > 0 to continue", "txtADBLedgerBalance"},
    {ApyRestsOn<BalanceColumn::Collected>, NotAboveZero<&Entry::txtADBCollectedBalance>,
     "Please enter an ADB Collected balance > 0 to continue", "txtADBCollectedBalance"},
    {AdbMethod, NoAmount<&Entry::txtIntAmt>, "Please enter a valid interest for ADB Method",
     "txtIntAmt"},
    {Everyone, NoAmount<&Entry::txtIntAmt>,
     "Please enter a valid interest in for Daily Balance Method", "txtIntAmt"},
};

std::optional<Refusal> Run(std::span<const OrderedCheck<Checked>> checks,
                           const StatementCheck& check) {
  return FirstFailure(checks, Checked{check.setup, check.entry});
}

}  // namespace

CheckOutcome CheckEntries(StatementCheck& check) {
  CheckOutcome outcome{.notice = Run(kNotices, check), .refusal = Run(kMinimumChecks, check)};
  if (outcome.refusal) return outcome;
  outcome.refusal = CountPeriod(check.setup.year, check.entry, PeriodCaller::Button);
  if (outcome.refusal) return outcome;
  check.entry = WithDemandedMethod(check.setup, std::move(check.entry));
  FollowChanges(check);
  outcome.refusal = Run(kFieldChecks, check);
  return outcome;
}

std::optional<Refusal> CheckBeforeCompute(const StatementCheck& check) {
  return Run(kComputeChecks, check);
}

std::optional<Refusal> CheckBeforeResult(const StatementCheck& check) {
  return Run(kResultChecks, check);
}

}  // namespace corvane
