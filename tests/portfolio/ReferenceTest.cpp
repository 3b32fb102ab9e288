#include <gtest/gtest.h>

#include <fstream>

#include "CaseTable.h"
#include "RunText.h"
#include "support/Dates.h"

namespace corvane {
namespace {

/// The columns of a reference table under the names of a portfolio file. Of a list the part of an
/// entry, where it has several.
NamedCells RowOf(const CaseRow& row, std::size_t part = 0) {
  static const std::pair<const char*, const char*> names[] = {
      {"unit", "compounding"},
      {"n", "every"},
      {"basis", "year"},
      {"withdrawal", "withdrawals"},
      {"w", "withdrawal_periods"},
      {"m", "withdrawal_distance"},
      {"month", "begin_month"},
      {"months", "begin_month"},
      {"year", "begin_year"},
      {"years", "begin_year"},
      {"rate", "rate"},
      {"rates", "rate"},
      {"balance", "balance"},
      {"term", "term"},
      {"terms", "term"},
      {"apy", "disclosed_apy"},
      {"bounds", "not_exceeding"},
  };
  NamedCells cells;
  for (const auto& [column, name] : names) {
    if (!row.fields.contains(column)) continue;
    const auto parts = SplitAt(row.Text(column), '/');
    if (parts.size() == 1) cells[name] = parts[0];
    if (parts.size() > 1 && part < parts.size()) cells[name] = parts[part];
  }
  cells["count_feb_29"] = row.Text("leap") == "1" ? "yes" : "no";
  cells["daily_rate_factor"] = "1/" + row.Text("factor");
  return cells;
}

std::string Cents(double amount) {
  return FormatFixed2(amount);
}

TEST(PortfolioReference, RegularAccountsAndTiersByMethodA) {
  const auto cases = ReadCases("regular.csv");
  std::vector<NamedCells> rows;
  for (const CaseRow& row : cases) {
    NamedCells cells = RowOf(row);
    cells["account"] = std::to_string(rows.size());
    if (row.Text("account") == "tierA") {
      cells["kind"] = "tier-a";
      cells["not_exceeding"] = "1";
      rows.push_back(cells);
      cells["not_exceeding"] = "";
    }
    rows.push_back(cells);
  }
  const auto results = RowsOf(RunText(FileOf(rows)));
  ASSERT_EQ(results.size(), rows.size());
  std::size_t place = 0;
  for (const CaseRow& row : cases) {
    for (int entry = row.Text("account") == "tierA" ? 2 : 1; entry > 0; --entry) {
      const NamedCells& result = results[place++];
      EXPECT_EQ(result.at("computed_interest"), Cents(row.Number("interest"))) << row.line;
      EXPECT_EQ(result.at("computed_apy"), Cents(row.Number("apy"))) << row.line;
      EXPECT_EQ(result.at("verdict") + result.at("message"), "OK") << row.line;
    }
  }
}

TEST(PortfolioReference, SteppedAccounts) {
  for (const CaseRow& row : ReadCases("stepped.csv")) {
    std::vector<NamedCells> rows;
    const auto interests = row.List("interests");
    while (rows.size() < interests.size()) {
      rows.push_back(RowOf(row, rows.size()));
      rows.back()["kind"] = "stepped";
    }
    const auto results = RowsOf(RunText(FileOf(rows)));
    const NamedCells& last = results.back();
    if (row.Text("unit") == "years" && row.Text("basis") == "366") {
      // The setup window does not offer it.
      EXPECT_EQ(results.front().at("message"),
                "Line 2: The column year has to be empty or 365 here.");
      continue;
    }
    for (std::size_t part = 0; part < interests.size(); ++part) {
      EXPECT_EQ(results[part].at("computed_interest"), Cents(interests[part])) << row.line;
    }
    EXPECT_EQ(last.at("computed_apy"), Cents(row.Number("apy"))) << row.line;
    EXPECT_EQ(last.at("verdict") + results[0].at("message"), "OK") << row.line;
  }
}

TEST(PortfolioReference, TierEndsByMethodB) {
  for (const CaseRow& row : ReadCases("tiers.csv")) {
    std::vector<NamedCells> rows;
    while (rows.size() < row.List("rates").size()) {
      rows.push_back(RowOf(row, rows.size()));
      NamedCells& cells = rows.back();
      cells["kind"] = "tier-b";
      if (rows.size() > 1) cells["disclosed_apy_high"] = cells["disclosed_apy"];
      if (rows.size() > 1) cells["term"] = "";
      // One bound alone is no list.
      if (rows.size() == row.List("rates").size()) cells["not_exceeding"] = "";
    }
    rows.back()["balance"] = row.Text("typed");
    const auto results = RowsOf(RunText(FileOf(rows)));
    const NamedCells& shown = results.at(static_cast<std::size_t>(row.Whole("tier") - 1));
    const bool isHigh = row.Whole("tier") > 1 && row.Text("end") == "high";
    const std::string end = isHigh ? "_high" : "";
    EXPECT_EQ(shown.at("computed_interest" + end), Cents(row.Number("interest"))) << row.line;
    EXPECT_EQ(shown.at("computed_apy" + end), Cents(row.Number("apy"))) << row.line;
    EXPECT_EQ(shown.at("verdict" + end) + results[0].at("message"), "OK") << row.line;
  }
}

/// The tiers of the statements of interest_by_day.csv.
const std::pair<const char*, const char*> kTiers[] = {
    {"1.05", "1000"}, {"2.5", "2500"}, {"4.1265", "15000"}, {"5.75", ""}};

std::vector<NamedCells> StatementRows(const CaseRow& row, const std::string& account) {
  const std::string kind = row.Text("kind"), minimums = row.Text("minimums");
  NamedCells cells = {{"account", account},
                      {"check", "statement"},
                      {"kind", kind == "tierA"   ? "tier-a"
                               : kind == "tierB" ? "tier-b"
                                                 : kind},
                      {"compounding", row.Text("every") == "0" ? "none" : "days"},
                      {"every", row.Text("every")},
                      {"method", row.Text("method")},
                      {"minimum_adb", minimums == "adb" || minimums == "both" ? "1000" : "0"},
                      {"minimum_daily", minimums == "daily" || minimums == "both" ? "500" : "0"},
                      {"daily_rate_factor", row.Text("pattern") == "varied" ? "1/365" : "1/366"},
                      {"disclosed_apy", "1"},
                      {"days", row.Text("days")}};
  if (kind == "regular") cells["rate"] = "3.65";
  if (!kind.starts_with("tier")) return {cells};
  std::vector<NamedCells> rows;
  for (const auto& [rate, bound] : kTiers) {
    rows.push_back(cells);
    rows.back()["rate"] = rate;
    rows.back()["not_exceeding"] = bound;
  }
  return rows;
}

TEST(PortfolioReference, DailyBalancesOfStatements) {
  const auto days = ReadCases("statement_days.csv");
  std::vector<NamedCells> rows;
  std::string balances = "account,date,rate,balance\n";
  std::map<std::string, CaseRow> cases;
  for (const CaseRow& row : ReadCases("interest_by_day.csv")) {
    const std::string account = std::to_string(cases.size());
    cases.emplace(account, row);
    const auto ofAccount = StatementRows(row, account);
    rows.insert(rows.end(), ofAccount.begin(), ofAccount.end());
    for (int day = 0; day < row.Whole("days"); ++day) {
      const CaseRow& cells = days.at(static_cast<std::size_t>(day));
      balances += account + "," + FormatDate(AddDays(*ParseDate("01-01-2025"), day)) + "," +
                  cells.Text("steprate") + "," + cells.Text(row.Text("pattern")) + "\n";
    }
  }
  int compared = 0;
  for (const NamedCells& result : RowsOf(RunText(FileOf(rows), balances))) {
    const CaseRow& row = cases.at(result.at("account"));
    if (!result.at("computed_average").empty()) {
      EXPECT_EQ(result.at("computed_average"), row.Text("adb")) << row.line;
    }
    // Minimums withhold interest or have it typed, and refuse some accounts.
    if (row.Text("minimums") != "none" || result.at("computed_apy").empty()) continue;
    EXPECT_EQ(result.at("computed_interest"), Cents(row.Number("interest"))) << row.line;
    ++compared;
  }
  EXPECT_GT(compared, 200);
}

TEST(PortfolioReference, TheYieldEarnedAndTheAdditionalFormula) {
  const auto cases = ReadCases("apy_earned.csv");
  std::vector<NamedCells> rows;
  for (const CaseRow& row : cases) {
    NamedCells cells = {{"check", "statement"},
                        {"compounding", "none"},
                        {"rate", "5"},
                        {"disclosed_apy", "5"},
                        {"method", "daily"},
                        {"minimum_adb", "0"},
                        {"minimum_daily", "0"},
                        {"interest", row.Text("interest")},
                        {"days", row.Text("days")},
                        {"average_balance", row.Text("balance")},
                        {"year", row.Text("year")}};
    rows.push_back(cells);
    cells["additional_days"] = row.Text("period");
    rows.push_back(cells);
  }
  const auto results = RowsOf(RunText(FileOf(rows)));
  for (std::size_t k = 0; k < cases.size(); ++k) {
    EXPECT_EQ(results[2 * k].at("computed_apy"), Cents(cases[k].Number("apy"))) << cases[k].line;
    EXPECT_EQ(results[2 * k + 1].at("computed_apy"), Cents(cases[k].Number("additional")))
        << cases[k].line << results[2 * k + 1].at("message");
  }
}

}  // namespace
}  // namespace corvane
