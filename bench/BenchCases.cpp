#include "BenchCases.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "account/SessionRecord.h"
#include "formulas/InterestByDay.h"
#include "formulas/RegularApy.h"
#include "reports/DisclosureReport.h"
#include "reports/InterestReport.h"
#include "reports/StatementReport.h"

namespace corvane {

namespace {

using Act = std::function<void()>;

constexpr int kLongestPeriod = 96;

/// What a row changes in a regular account that compounds daily.
using Change = std::function<void(SessionRecord&)>;

SessionRecord DailyAccount() {
  SessionRecord session;
  session.InstitutionName = "First National Bank";
  session.AccountDescription = "12 Month Certificate";
  session.RoundingDigits = 15;
  session.AcctRegular = true;
  session.CompoundDays = true;
  session.CompoundingDays = 1;
  session.DaysInYear365 = true;
  session.DaysInYear = 365;
  session.BeginMonth = 1;
  session.BeginYear = 2023;
  return session;
}

/// $1,000 at 5.25 % over the term, as Calculate computes it.
Act Check(const Change& change, double term) {
  auto session = std::make_shared<SessionRecord>(DailyAccount());
  change(*session);
  session->EnteredTerm = term;
  const auto compute = [session, term] {
    double principal = 1000;
    double countedTerm = term;
    return CalcRegularApy(*session, 5.39, 5.25, principal, countedTerm, "1/365", 1);
  };
  if (compute() || session->ComputedInterest <= 0) throw std::logic_error("nothing was computed");
  return [compute] { benchmark::DoNotOptimize(compute()); };
}

void Withdraw(SessionRecord& session, Flag SessionRecord::*interval) {
  session.*interval = true;
  session.WdrwlPeriods = 12;
  session.BtwnReqIntWdrwl = 1;
}

void CompoundBy(SessionRecord& session, Flag SessionRecord::*unit) {
  session.CompoundDays = false;
  session.*unit = true;
}

std::vector<std::string> TemplateLines(std::string_view name) {
  std::ifstream in(PathOf(FileIn(CORVANE_TEMPLATE_FOLDER, name)), std::ios::binary);
  return LinesOf(std::string(std::istreambuf_iterator<char>(in), {}));
}

using MakeContent = std::function<ReportContent(const SessionRecord&)>;

/// A session with a computed account and a statement of the longest period.
std::shared_ptr<const SessionRecord> ComputedSession() {
  auto session = std::make_shared<SessionRecord>(DailyAccount());
  session->ReqWdrwlNotReq = true;
  session->ComputedInterest = 53.9;
  session->ComputedApy = 5.39;
  session->ApyVerdict = "OK";
  session->LedgerBasis = true;
  session->StatementDays = kLongestPeriod;
  session->PeriodStart = SerialOf(*ParseDate("01-15-2024"));
  session->LedgerDayBalances.Resize(1, kLongestPeriod);
  session->LedgerDayRates.Resize(1, kLongestPeriod);
  for (int day = 1; day <= kLongestPeriod; ++day) {
    session->LedgerDayBalances.Set(day, 1000 + day);
    session->LedgerDayRates.Set(day, 5.25);
  }
  return session;
}

Act BuildInMemory(const ReportNames& names, const MakeContent& content) {
  const auto session = ComputedSession();
  const auto lines = TemplateLines(names.templateName);
  if (lines.empty()) throw std::logic_error("no template");
  return [=] { benchmark::DoNotOptimize(BuildReport(lines, content(*session)).text.data()); };
}

/// Reads the template, fills it and writes the report, as the results window does.
Act BuildFile(const ReportNames& names, const MakeContent& content) {
  const auto session = ComputedSession();
  const std::string source = FileIn(CORVANE_TEMPLATE_FOLDER, names.templateName);
  const std::string target =
      FileIn(Utf8Of(std::filesystem::temp_directory_path()), "corvane_bench.html");
  return [=] {
    if (BuildReportFile(source, target, content(*session)).error) {
      throw std::logic_error("no report was written");
    }
  };
}

ReportContent Disclosure(const SessionRecord& session) {
  return DisclosureReport(session, {"1000.00", "5.25", "365", "5.39", "", ""});
}

ReportContent Statement(const SessionRecord& session) {
  return StatementReport(session, {.txtDCompounding = "1",
                                   .txtMinADB = "0",
                                   .txtMinDBal = "0",
                                   .txtIntRate = "5.25",
                                   .txtIntAmt = "13.81",
                                   .txtDClApy = "5.39",
                                   .txtLedgerdays = "96",
                                   .txtADBLedgerBalance = "1000.00",
                                   .txtColDays = "96",
                                   .txtADBCollectedBalance = "1000.00"});
}

ReportContent InterestByDayReport(const SessionRecord& session) {
  return InterestReport(session, {});
}

/// A period of the longest length, the balances spread over three tiers.
Act StatementPeriod(const StatementAccount& account) {
  std::vector<double> balances;
  for (int day = 0; day < kLongestPeriod; ++day) balances.push_back(500.25 + 250 * (day % 80));
  const std::vector<double> rates(balances.size(), 5.25);
  if (InterestByDay(account, balances, rates).interest.total <= 0) {
    throw std::logic_error("nothing was computed");
  }
  return [=] { benchmark::DoNotOptimize(InterestByDay(account, balances, rates).interest.total); };
}

StatementAccount Earning(RateKind kind, BalanceMethod method) {
  StatementAccount account;
  account.kind = kind;
  account.method = method;
  account.compoundingDays = 1;
  account.rate = 5.25;
  if (IsTiered(kind)) account.tiers = {{0, 5.25}, {2500, 5.5}, {15000, 5.75}};
  return account;
}

Change By(Flag SessionRecord::*unit) {
  return [unit](SessionRecord& session) { CompoundBy(session, unit); };
}

std::vector<BenchCase> CheckCases() {
  const auto unchanged = [](SessionRecord&) {};
  const auto withdrawnByDays = [](SessionRecord& session) {
    Withdraw(session, &SessionRecord::ReqWdrwlDays);
  };
  const auto withdrawnByMonths = [](SessionRecord& session) {
    Withdraw(session, &SessionRecord::ReqWdrwlMonths);
  };
  const auto monthlyWithdrawn = [](SessionRecord& session) {
    CompoundBy(session, &SessionRecord::CompoundMonths);
    Withdraw(session, &SessionRecord::ReqWdrwlMonths);
  };
  return {
      {"closed/none", [] { return Check(By(&SessionRecord::CompoundNone), 365); }},
      {"closed/days", [=] { return Check(unchanged, 365); }},
      {"closed/months", [] { return Check(By(&SessionRecord::CompoundMonths), 12); }},
      {"closed/years", [] { return Check(By(&SessionRecord::CompoundYears), 1); }},
      {"withdrawals/365 days by days", [=] { return Check(withdrawnByDays, 365); }},
      {"withdrawals/365 days by months", [=] { return Check(withdrawnByMonths, 365); }},
      {"withdrawals/12 months", [=] { return Check(monthlyWithdrawn, 12); }},
  };
}

std::vector<BenchCase> StatementCases() {
  using enum RateKind;
  using enum BalanceMethod;
  const struct {
    const char* name;
    RateKind kind;
    BalanceMethod method;
  } accounts[] = {
      {"statement of 96 days/regular, daily balance", Regular, DailyBalance},
      {"statement of 96 days/regular, average", Regular, AverageDailyBalance},
      {"statement of 96 days/stepped", Stepped, DailyBalance},
      {"statement of 96 days/tiered A, daily balance", TierA, DailyBalance},
      {"statement of 96 days/tiered A, average", TierA, AverageDailyBalance},
      {"statement of 96 days/tiered B, daily balance", TierB, DailyBalance},
      {"statement of 96 days/tiered B, average", TierB, AverageDailyBalance},
  };
  std::vector<BenchCase> cases;
  for (const auto& a : accounts) {
    const StatementAccount account = Earning(a.kind, a.method);
    cases.push_back({a.name, [account] { return StatementPeriod(account); }});
  }
  return cases;
}

std::vector<BenchCase> ReportCases() {
  const struct {
    std::string name;
    const ReportNames& names;
    ReportContent (*content)(const SessionRecord&);
  } reports[] = {{"disclosure", kDisclosureReport, Disclosure},
                 {"statement", kStatementReport, Statement},
                 {"interest of 96 days", kInterestReport, InterestByDayReport}};
  std::vector<BenchCase> cases;
  for (const auto& r : reports) {
    cases.push_back({"report/" + r.name, [r] { return BuildInMemory(r.names, r.content); }});
    cases.push_back({"report/" + r.name + ", file", [r] { return BuildFile(r.names, r.content); }});
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
