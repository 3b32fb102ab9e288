#include "reports/RuleText.h"

#include <algorithm>
#include <cmath>

#include "reports/HtmlText.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

// Interest of a deposit. "Factor days" are the days of the year of the daily rate factor.

constexpr std::string_view kSimple =
    "Interest = balance &times; rate &times; days of the term &divide; factor days.";
constexpr std::string_view kEveryDay =
    "Interest = balance &times; ((1 + rate &divide; factor days)<sup>days of the term</sup> "
    "&minus; 1): the daily rate compounds every day.";
constexpr std::string_view kWithdrawnByDays =
    "The term is divided by the number of withdrawals; in each part the daily rate (rate &divide; "
    "factor days) times the days between compounding is added to the balance once for each of its "
    "periods, and at its end the interest is withdrawn.";
constexpr std::string_view kWithdrawnByMonths =
    "Between two withdrawals the daily rate (rate &divide; factor days) compounds every day; at "
    "each the interest is withdrawn. Months have the lengths of the beginning year.";
constexpr std::string_view kMonths =
    "Interest = balance &times; ((1 + rate &divide; p)<sup>days &divide; factor days &times; "
    "p</sup> &minus; 1), where p is 12 divided by the months between compounding, and the days "
    "run from the first of the beginning month.";
constexpr std::string_view kMonthsWithdrawn =
    "Each compounding period earns the daily rate (rate &divide; factor days) times its days; at "
    "each withdrawal the interest is withdrawn. Months have the lengths of the beginning year; the "
    "days of the whole term run from the first of the beginning month.";
constexpr std::string_view kYears =
    "Interest = balance &times; ((1 + rate &times; years between compounding)<sup>periods</sup> "
    "&minus; 1).";
constexpr std::string_view kYearsStepped =
    "Each compounding period earns the daily rate (rate &divide; factor days) times 365 days for "
    "each of its years.";

std::string_view InterestOfDeposit(const DisclosureCheck& check) {
  const Unit withdrawal = check.setup.withdrawal;
  switch (check.setup.compounding) {
    case Unit::None:
      return kSimple;
    case Unit::Days:
      if (withdrawal == Unit::Months) return kWithdrawnByMonths;
      return withdrawal == Unit::Days && check.entries.at(0).txtWdrwlPeriods.Value() > 1
                 ? kWithdrawnByDays
                 : kEveryDay;
    case Unit::Months:
      return withdrawal == Unit::Months ? kMonthsWithdrawn : kMonths;
    case Unit::Years:
      return check.setup.kind == AccountKind::Stepped ? kYearsStepped : kYears;
  }
  return "";
}

std::string_view PlaceOf(AccountKind kind) {
  switch (kind) {
    case AccountKind::Regular:
      return "Appendix A, Part I.A.";
    case AccountKind::Stepped:
      return "Appendix A, Part I.B: the periods follow one another, and the APY is that of their "
             "total interest on the first balance.";
    case AccountKind::TierA:
      return "Appendix A, Part I.D, method A: the whole balance earns the rate of its tier.";
    case AccountKind::TierB:
      return "Appendix A, Part I.D, method B: each part of a balance earns its tier's rate, and "
             "the interest of all parts is added up.";
  }
  return "";
}

std::string_view WhatPeriodsKeep(const DisclosureSetup& setup) {
  if (setup.kind != AccountKind::Stepped) return "";
  const bool builds = setup.compounding != Unit::None && setup.withdrawal == Unit::None;
  return builds ? " What a period earns stays in the account and earns in the next one."
                : " Each period earns on the first balance.";
}

std::string YieldFormula(const DisclosureSetup& setup) {
  const char* exponent = setup.compounding == Unit::Years ? "1 &divide; years of the term"
                                                          : "days in the year &divide; days";
  return " Interest is rounded to cents, an exact half to the even cent; APY = 100 &times; ((1 + "
         "interest &divide; balance)<sup>" +
         std::string(exponent) + "</sup> &minus; 1).";
}

// Interest of a statement's days.

std::string_view EarningBalance(const StatementAccount& account) {
  if (account.kind != AccountKind::Stepped &&
      account.method == BalanceMethod::AverageDailyBalance) {
    return " Each day the average daily balance earns the daily rate, unless it is below the "
           "minimum ADB.";
  }
  return " Each day its own balance earns the daily rate, unless it is below the minimum daily "
         "balance.";
}

std::string CompoundingRule(const StatementAccount& account) {
  if (account.compoundingDays == 0) return " Interest does not compound.";
  if (account.compoundingDays == 1) {
    return " On every earning day but the first the interest so far counts as balance.";
  }
  return " On the first earning day after each " + std::to_string(account.compoundingDays) +
         " of them the interest so far counts as balance.";
}

std::string_view TierRule(AccountKind kind) {
  if (kind == AccountKind::TierA) return " The whole balance earns the rate of its tier.";
  if (kind == AccountKind::TierB) return " Each part of a balance earns its tier's rate.";
  return "";
}

bool IsViolation(const ResultRow& row) {
  return row.verdict == Verdict::Violation;
}

}  // namespace

std::string DisclosureRule(const DisclosureCheck& check) {
  const DisclosureSetup& setup = check.setup;
  std::string rule(PlaceOf(setup.kind.value_or(AccountKind::Regular)));
  rule.append(WhatPeriodsKeep(setup)).append(" ").append(InterestOfDeposit(check));
  return rule + YieldFormula(setup);
}

std::string StatementRule(const StatementCheck& check) {
  if (check.setup.additionalFormula) {
    return "Appendix A, Part II.B: APY earned = 100 &times; ((1 + interest &divide; average daily "
           "balance &divide; days in period &times; days of the compounding period)<sup>days in "
           "the year &divide; days of the compounding period</sup> &minus; 1).";
  }
  return "Appendix A, Part II.A: APY earned = 100 &times; ((1 + interest &divide; average daily "
         "balance)<sup>days in the year &divide; days in period</sup> &minus; 1).";
}

std::string InterestRule(const StatementAccount& account) {
  return "Appendix A, Part II: the average daily balance is the sum of the balances divided by the "
         "days, rounded to cents; a negative balance counts as zero. The daily rate is the "
         "interest rate &divide; days in the year of the daily rate factor." +
         std::string(EarningBalance(account)) + std::string(TierRule(account.kind)) +
         CompoundingRule(account);
}

std::string VerdictSentence(double disclosedApy, double computedApy) {
  const Verdict verdict = CheckApy(disclosedApy, computedApy);
  const double apart = std::fabs(disclosedApy - computedApy);
  const std::string distance = verdict == Verdict::Ok
                                   ? "within 0.05 percentage point of"
                                   : FormatRate(apart) +
                                         (apart > 1 ? " percentage points" : " percentage point") +
                                         (disclosedApy > computedApy ? " above" : " below");
  return std::string(VerdictText(verdict)) + ": the disclosed APY of " + FormatRate(disclosedApy) +
         "% is " + distance + " the computed APY of " + FormatFixed2(computedApy) + "%.";
}

std::string VerdictSentence(const DisclosureResult& result) {
  const ResultRow& newest = result.rows.back();
  const bool single = result.rows.size() == 1 || !result.rows.front().verdict;
  if (single) return VerdictSentence(newest.disclosedApy, newest.apy.value_or(0));
  const auto violations = std::ranges::count_if(result.rows, IsViolation);
  const std::string lines = std::to_string(result.rows.size()) + " lines";
  if (violations == 0) {
    return "OK: in all " + lines +
           " the disclosed APY is within 0.05 percentage point of the computed APY.";
  }
  return "APY VIOLATION: in " + std::to_string(violations) + " of " + lines +
         " the disclosed APY is more than 0.05 percentage point away from the computed APY.";
}

}  // namespace corvane
