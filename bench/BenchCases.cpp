#include "BenchCases.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <stdexcept>

#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "formulas/DisclosedYield.h"
#include "formulas/InterestByDay.h"
#include "reports/DisclosureReport.h"
#include "reports/InterestReport.h"
#include "reports/StatementReport.h"
#include "support/WholeFile.h"

namespace corvane {

namespace {

using Act = std::function<void()>;

/// What one closed formula cannot do without.
Act OnePower() {
  return [daily = 1 + 0.0525 / 365, days = 365.0]() mutable {
    benchmark::DoNotOptimize(daily);
    benchmark::DoNotOptimize(days);
    benchmark::DoNotOptimize(std::pow(daily, days));
  };
}

/// $1,000 at 5.25 % over the term, with so many withdrawals, one apart, where the terms demand
/// them.
Act Check(const AccountTerms& terms, double term, double withdrawals) {
  Deposit deposit;
  deposit.balance = 1000;
  deposit.rate = 5.25;
  deposit.term = term;
  deposit.begin = std::chrono::year{2023} / std::chrono::January;
  if (terms.withdrawal != Unit::None) {
    deposit.withdrawals = {.periods = withdrawals, .apart = 1};
  }
  if (FailureOf(RegularYield(terms, deposit))) throw std::logic_error("nothing was computed");
  return [=] { benchmark::DoNotOptimize(RegularYield(terms, deposit)); };
}

const AccountHeader kHeader = {"First National Bank", "12 Month Certificate", "", ""};
const Date kToday = std::chrono::year{2024} / std::chrono::March / 7;

/// Enters what an account asks for until it has a result.
DisclosureCheck Checked(DisclosureCheck check) {
  while (!check.result) {
    DisclosureEntry entry = PresentEntry(check);
    entry.txtDiscAPY.text = "5.39";
    if (entry.txtBal.enabled && entry.txtBal.IsEmpty()) entry.txtBal.text = "9000000";
    if (entry.txtIntRateA.enabled) entry.txtIntRateA.text = "5.25";
    if (entry.txtTerm.enabled) entry.txtTerm.text = "365";
    if (AttemptCalculation(check, entry).refusal) throw std::logic_error("nothing was computed");
  }
  return check;
}

ReportContent Disclosure() {
  static const DisclosureCheck check = Checked({});
  return DisclosureReport(kHeader, check, kToday);
}

/// Ten tiers by method B, with a note on every line.
ReportContent DisclosureOfTenTiers() {
  static const DisclosureCheck check = [] {
    DisclosureCheck tiered;
    tiered.setup.kind = AccountKind::TierB;
    tiered.setup.year.countsLeapDay = true;
    tiered.tiers.count = kMostTiers;
    for (int tier = 1; tier <= kMostTiers; ++tier) {
      tiered.tiers.Of(tier) = {FormatPlain(5 + 0.125 * tier), FormatPlain(250000 * tier)};
    }
    return Checked(tiered);
  }();
  return DisclosureReport(kHeader, check, kToday);
}

StatementCheck CheckedStatement() {
  StatementCheck check;
  check.setup.compounding = Unit::Days;
  check.setup.txtDCompounding.text = "1";
  StatementEntry& entry = check.entry;
  entry.txtMinADB.text = entry.txtMinDBal.text = "0";
  entry.txtIntRate.text = "5.25";
  entry.txtIntAmt.text = "13.81";
  entry.txtDClApy.text = "5.39";
  entry.txtLedgerdays.text = entry.txtColDays.text = "96";
  entry.txtADBLedgerBalance.text = entry.txtADBCollectedBalance.text = "1000.00";
  check.result = {.interest = 13.81, .apy = 5.39, .verdict = Verdict::Ok};
  return check;
}

ReportContent Statement() {
  return StatementReport(kHeader, CheckedStatement(), kToday);
}

ReportContent InterestOfLongestPeriod() {
  DailyBalances daily;
  daily.start = std::chrono::year{2024} / std::chrono::January / 15;
  for (int day = 1; day <= kLongestPeriod; ++day)
    daily.days.push_back({FormatFixed2(1000.0 + day), "5.25"});
  return InterestReport(kHeader, CheckedStatement(), daily, kToday);
}

struct TimedReport {
  std::string name;
  const ReportNames& names;
  ReportContent (*content)();

  std::filesystem::path Template() const {
    return std::filesystem::path(CORVANE_TEMPLATE_FOLDER) / names.templateName;
  }
};

Act FillInMemory(const TimedReport& report) {
  const auto source = ReadWholeFile(report.Template());
  const auto lines = LinesOf(std::get<std::string>(source));
  return [=] { benchmark::DoNotOptimize(FillTemplate(lines, report.content()).lines.data()); };
}

/// Reads the template, fills it and writes the report, as the results window does.
Act WriteFile(const TimedReport& report) {
  const auto target = std::filesystem::temp_directory_path() / "corvane_bench.html";
  return [=] {
    if (!WriteReport(report.Template(), target, report.content()).text) {
      throw std::logic_error("no report was written");
    }
  };
}

/// A period of the longest length, the balances spread over ten tiers.
Act StatementPeriod(const StatementAccount& account) {
  std::vector<double> balances;
  for (int day = 0; day < kLongestPeriod; ++day) balances.push_back(500.25 + 250 * (day % 80));
  const std::vector<double> rates(balances.size(), 5.25);
  if (InterestByDay(account, balances, rates).interest.total <= 0) {
    throw std::logic_error("nothing was computed");
  }
  return [=] { benchmark::DoNotOptimize(InterestByDay(account, balances, rates).interest.total); };
}

StatementAccount Earning(AccountKind kind, BalanceMethod method) {
  StatementAccount account;
  account.kind = kind;
  account.method = method;
  account.compoundingDays = 1;
  account.rate = 5.25;
  for (int tier = 0; IsTiered(kind) && tier < kMostTiers; ++tier) {
    account.tiers.push_back({2000.0 * tier, 5.25 + 0.125 * tier});
  }
  return account;
}

std::vector<BenchCase> CheckCases() {
  using enum Unit;
  const struct {
    const char* name;
    Unit compounding, withdrawal;
    double term;
    double withdrawals;
  } accounts[] = {
      {"closed/none", None, None, 365, 0},
      {"closed/days", Days, None, 365, 0},
      {"closed/months", Months, None, 12, 0},
      {"closed/years", Years, None, 1, 0},
      {"withdrawals/365 days by days", Days, Days, 365, 12},
      {"withdrawals/365 days by months", Days, Months, 365, 12},
      {"withdrawals/3,650 days by months", Days, Months, 3650, 120},
      {"withdrawals/36,500 days by months", Days, Months, 36500, 1200},
      {"withdrawals/12 months", Months, Months, 12, 12},
  };
  std::vector<BenchCase> cases = {{"one pow", OnePower}};
  for (const auto& a : accounts) {
    AccountTerms terms;
    terms.compounding.unit = a.compounding;
    terms.withdrawal = a.withdrawal;
    cases.push_back({a.name, [terms, a] { return Check(terms, a.term, a.withdrawals); }});
  }
  return cases;
}

std::vector<BenchCase> StatementCases() {
  using enum AccountKind;
  using enum BalanceMethod;
  const struct {
    const char* name;
    AccountKind kind;
    BalanceMethod method;
  } accounts[] = {
      {"statement of 96 days/regular, daily balance", Regular, DailyBalance},
      {"statement of 96 days/regular, average", Regular, AverageDailyBalance},
      {"statement of 96 days/stepped", Stepped, DailyBalance},
      {"statement of 96 days/ten tiers A, daily balance", TierA, DailyBalance},
      {"statement of 96 days/ten tiers A, average", TierA, AverageDailyBalance},
      {"statement of 96 days/ten tiers B, daily balance", TierB, DailyBalance},
      {"statement of 96 days/ten tiers B, average", TierB, AverageDailyBalance},
  };
  std::vector<BenchCase> cases;
  for (const auto& a : accounts) {
    const StatementAccount account = Earning(a.kind, a.method);
    cases.push_back({a.name, [account] { return StatementPeriod(account); }});
  }
  return cases;
}

std::vector<BenchCase> ReportCases() {
  const TimedReport reports[] = {
      {"disclosure", kDisclosureReport, Disclosure},
      {"disclosure of ten tiers", kDisclosureReport, DisclosureOfTenTiers},
      {"statement", kStatementReport, Statement},
      {"interest of 96 days", kInterestReport, InterestOfLongestPeriod},
  };
  std::vector<BenchCase> cases;
  for (const TimedReport& r : reports) {
    cases.push_back({"report/" + r.name, [r] { return FillInMemory(r); }});
    cases.push_back({"report/" + r.name + ", file", [r] { return WriteFile(r); }});
  }
  return cases;
}

}  // namespace

std::vector<BenchCase> BenchCases() {
  std::vector<BenchCase> cases;
  for (const auto& some : {CheckCases(), StatementCases(), ReportCases()}) {
    cases.insert(cases.end(), some.begin(), some.end());
  }
  return cases;
}

}  // namespace corvane
