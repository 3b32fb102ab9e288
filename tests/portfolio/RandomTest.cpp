#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>

#include "CheckTable.h"
#include "RunText.h"
#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/EntryTerm.h"
#include "portfolio/CheckRows.h"

namespace corvane {
namespace {

/// What a person at the windows was told and found, in the words of a result row.
struct Seen {
  std::string notices;
  std::string refusal;
  std::size_t refusedRow = 0;
  std::map<std::pair<std::size_t, std::string>, std::string> figures;  ///< by row and column

  bool Takes(const CheckOutcome& outcome) {
    if (outcome.notice && notices.find(outcome.notice->text) == notices.npos) {
      notices += (notices.empty() ? "" : " ") + outcome.notice->text;
    }
    if (outcome.refusal) refusal = outcome.refusal->text;
    return !outcome.refusal;
  }
};

/// A random account: its rows in a file, and what comes of the same texts in the windows.
class RandomAccount {
 public:
  RandomAccount(std::mt19937& random, std::string name) : random_(random), name_(std::move(name)) {}

  std::vector<NamedCells> rows;
  std::string balances;
  Seen seen;
  std::string again;  ///< the check as rows of a file

  void Disclose() {
    DisclosureCheck check;
    DisclosureSetup setup;
    const std::string kind = Choose(setup, "kind",
                                    {{"regular", "optRegNoDisc"},
                                     {"stepped", "optStepRate"},
                                     {"tier-a", "optTierA"},
                                     {"tier-b", "optTierB"}});
    Choose(setup, "compounding",
           {{"none", "optICNone"},
            {"days", "optICDays"},
            {"months", "optICMonths"},
            {"years", "optICYears"}});
    if (GroupsOf(setup).interval) {
      setup.txtDailyCompounding.text = Pick({"1", "1", "1", "7", "3", "0", "x", "5"});
      first_["every"] = setup.txtDailyCompounding.text;
    }
    if (GroupsOf(setup).year) {
      Choose(setup, "year", {{"365", "optDY365"}, {"366", "optDY366"}});
      Choose(setup, "count_feb_29", {{"yes", "optLYYes"}, {"no", "optLYNo"}});
    }
    if (GroupsOf(setup).withdrawalByDays) {
      Choose(setup, "withdrawals",
             {{"none", "optRINotReq"}, {"days", "OptRIDays"}, {"months", "optRIMonths"}});
    }
    const std::size_t count = kind == "regular" ? 1 : 2 + random_() % 3;
    rows.assign(count, first_);
    for (NamedCells& row : rows) row["kind"] = kind;
    if (Continue(check, setup)) EnterAll(check);
    again = RowsOf(name_, {}, check);
  }

  void State() {
    StatementCheck check;
    StatementSetup setup = StatementSetupAtStart();
    first_["check"] = "statement";
    const std::string kind = Choose(setup, "kind",
                                    {{"regular", "optRegNoDisc"},
                                     {"stepped", "optStepRate"},
                                     {"tier-a", "optTierA"},
                                     {"tier-b", "optTierB"}});
    Choose(setup, "compounding", {{"none", "optICNone"}, {"days", "optICDays"}});
    Choose(setup, "count_feb_29", {{"yes", "opt229yes"}, {"no", "opt229no"}});
    if (setup.OffersAdditionalFormula() && random_() % 3 == 0) {
      ChooseAdditionalFormula(setup, true);
      first_["additional_days"] = setup.txtDCPeriod.text = Pick({"91", "28", "27", "x"});
    }
    rows.assign(kind.starts_with("tier") ? 2 + random_() % 3 : 1, first_);
    for (NamedCells& row : rows) row["kind"] = kind;
    if (!seen.Takes(ContinueSetup(check, setup))) return;
    if (IsTiered(check.setup.kind) && !EnterTiers(check.tiers)) return;
    EnterPeriod(check);
  }

 private:
  using Words = std::vector<std::pair<std::string, std::string>>;

  std::string Pick(const std::vector<std::string>& texts) {
    return texts[random_() % texts.size()];
  }

  template <class Values>
  std::string Choose(Values& values, const std::string& column, const Words& words) {
    const auto& [word, control] = words[random_() % words.size()];
    EXPECT_TRUE(Put(values, control, "")) << control;
    first_["account"] = name_;
    return first_[column] = word;
  }

  bool Continue(DisclosureCheck& check, DisclosureSetup& setup) {
    if (!seen.Takes(ContinueSetup(check, setup))) return false;
    TierTable tiers;
    if (!check.setup.IsTiered()) return true;
    if (!EnterTiers(tiers)) return false;
    TakeTiers(check, tiers);
    return true;
  }

  bool EnterTiers(TierTable& tiers) {
    for (NamedCells& row : rows) {
      const int tier = ++tiers.count;
      row["rate"] = tiers.Of(tier).rate = Pick({"1.5", "2.25", "4", "0", "3.1234", "", "-1"});
      if (static_cast<std::size_t>(tier) == rows.size()) break;
      row["not_exceeding"] = tiers.Of(tier).notExceeding =
          random_() % 9 == 0 ? Pick({"", "0", "x", "999"}) : std::to_string(1000 * tier);
    }
    if (random_() % 2 == 0) {
      for (NamedCells& row : rows) row["rate"] = tiers.Of(int(&row - &rows[0]) + 1).rate = "2.5";
    }
    const auto refused = CheckTierTable(tiers);
    if (!refused) return true;
    seen.refusal = refused->refusal.text;
    const std::string& field = refused->refusal.field;
    seen.refusedRow = std::stoul(field.substr(field.find('(') + 1)) - 1;
    return false;
  }

  void EnterAll(DisclosureCheck& check) {
    const bool methodB = check.setup.kind == AccountKind::TierB;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (methodB && row > 0 && !Enter(check, row, true, false)) return;
      if (!Enter(check, row, false, methodB && row > 0)) return;
    }
    std::size_t entry = 0;
    for (const ResultRow& result : check.result->rows) {
      const auto row = static_cast<std::size_t>(result.number - 1);
      const std::string end = methodB && result.number > 1 && ++entry % 2 == 0 ? "_high" : "";
      seen.figures[{row, "computed_interest" + end}] = FormatFixed2(result.interest);
      seen.figures[{row, "computed_apy" + end}] = result.apy ? FormatFixed2(*result.apy) : "";
    }
  }

  bool Enter(DisclosureCheck& check, std::size_t row, bool isLowEnd, bool isHighEnd) {
    DisclosureEntry entry = PresentEntry(check);
    NamedCells& cells = rows[row];
    const bool isFirstPeriod = check.setup.kind == AccountKind::Stepped && row == 0;
    if (isFirstPeriod) entry.txtTierPerNum.text = std::to_string(rows.size());
    const bool byDates = entry.tStartDate.enabled && random_() % 3 == 0;
    const auto type = [&](const char* column, Field& field, const std::vector<std::string>& texts) {
      if (!field.enabled || (isHighEnd && cells.contains(column))) return;
      cells[column] = random_() % 25 == 0 ? Pick({"x", "-3", "0.5", "40000"}) : Pick(texts);
      field.text = cells[column];
    };
    type("rate", entry.txtIntRateA, {"5", "4.25", "0.1"});
    type(isHighEnd ? "disclosed_apy_high" : "disclosed_apy", entry.txtDiscAPY,
         {"5.12", "4.3", "0"});
    if (!isLowEnd) type("balance", entry.txtBal, {"1000", "25000.5", "123456.78"});
    if (!byDates) type("term", entry.txtTerm, {"12", "365", "360", "7"});
    type("withdrawal_periods", entry.txtWdrwlPeriods, {"12", "1", "3"});
    type("withdrawal_distance", entry.txtBtwnReqIntWdrwl, {"1", "7"});
    type("daily_rate_factor", entry.txtDailyRateFactor, {"1/365", "1/360", "1/366"});
    type("begin_month", entry.txtBeginMonth, {"1", "02", "11"});
    type("begin_year", entry.txtBeginYear, {"2023", "2024"});
    if (byDates) {
      entry.txtTerm.text.clear();
      type("start_date", entry.tStartDate, {"01-01-2023", "02-10-2024"});
      type("end_date", entry.tEndDate, {"01-01-2024", "03-01-2025", "01-01-2020"});
    } else if (!TermDatesEnabled(check, entry.txtTerm) && entry.tStartDate.enabled) {
      entry.tStartDate = entry.tEndDate = {.text = std::string(kEmptyDateMask), .enabled = false};
    }
    CountTerm(check.setup, entry);
    const AttemptOutcome outcome = AttemptCalculation(check, entry);
    if (!outcome.refusal) return true;
    seen.refusal = outcome.refusal->text;
    seen.refusedRow = row;
    return false;
  }

  void EnterPeriod(StatementCheck& check) {
    StatementEntry& entry = check.entry;
    NamedCells& cells = rows[0];
    entry = PresentEntry(check.setup, entry);
    if (!LocksMethod(check.setup)) {
      cells["method"] = Pick({"adb", "daily"});
      Put(entry, cells["method"] == "adb" ? "optADB" : "optDailyBal", "");
    }
    const auto type = [&](const char* column, Field& field, const std::vector<std::string>& texts) {
      if (!field.enabled) return;
      field.text = cells[column] = random_() % 25 == 0 ? Pick({"x", "-3", "0.5", ""}) : Pick(texts);
    };
    type("minimum_adb", entry.txtMinADB, {"0", "0", "0", "100"});
    type("minimum_daily", entry.txtMinDBal, {"0", "0", "0", "500"});
    type("disclosed_apy", entry.txtDClApy, {"1.5", "6.58"});
    if (!IsTiered(check.setup.kind)) type("rate", entry.txtIntRate, {"1.5", "6.39"});
    cells["daily_rate_factor"] = entry.txtDRFactor.text = Pick({"1/365", "1/360", "1/367"});
    type("days", entry.txtLedgerdays, {"3", "30"});
    if (cells["days"].empty()) return Calculate(check);
    FollowChanges(check);
    if (random_() % 2 == 0 && !EnterDays(check)) return;
    if (balances.empty()) {
      type("average_balance", entry.txtADBLedgerBalance, {"1000", "250.75"});
      type("interest", entry.txtIntAmt, {"5.25", "0.33", "0"});
    }
    Calculate(check);
  }

  bool EnterDays(StatementCheck& check) {
    const auto count = static_cast<int>(NumericValue(rows[0]["days"]));
    const Date start = *ParseDate("02-27-2024");
    std::vector<DayEntry> typed;
    for (int day = 0; day < std::max(count, 1); ++day) {
      const bool isSlip = random_() % 99 == 0;
      const std::string balance = isSlip ? Pick({"x", ""}) : Pick({"1000", "0", "-5", "723.5"});
      const DayEntry entry{balance, Pick({"2.5", "3"})};
      typed.push_back(entry);
      balances += name_ + "," + FormatDate(AddDays(start, day)) + "," + entry.balance + "," +
                  entry.rate + "\n";
    }
    if (!seen.Takes(StartCompute(check, BalanceColumn::Ledger))) return false;
    DailyBalances daily = DaysOf(check, BalanceColumn::Ledger, start);
    for (std::size_t day = 0; day < daily.days.size(); ++day) TakeDay(daily, day, typed[day]);
    if (!seen.Takes({.refusal = CheckPage(daily, 1)})) return false;
    if (const auto question = EmptyDaysQuestion(daily)) return seen.refusal = *question, false;
    FillRates(daily);
    const ComputedDays computed = std::get<ComputedDays>(ComputeAdb(daily));
    FinishCompute(check, daily, computed);
    seen.figures[{0, "computed_average"}] = FormatFixed2(computed.averageBalance);
    return true;
  }

  void Calculate(StatementCheck& check) {
    FollowChanges(check);
    if (!seen.Takes(CalculateStatement(check))) return;
    seen.figures[{0, "computed_interest"}] = FormatFixed2(check.result->interest);
    seen.figures[{0, "computed_apy"}] = FormatFixed2(check.result->apy);
    again = RowsOf(name_, {}, check);
  }

  std::mt19937& random_;
  std::string name_;
  NamedCells first_;
};

int AccountsToCheck() {
  const char* chosen = std::getenv("CORVANE_RANDOM_ACCOUNTS");
  return chosen ? std::atoi(chosen) : 3000;
}

TEST(PortfolioRandom, AccountsOfEveryKindComeOutAsInTheWindows) {
  std::mt19937 random(20261123);
  std::vector<RandomAccount> accounts;
  std::vector<NamedCells> file;
  std::string balances = "account,date,balance,rate\n", again = CheckFileHeader();
  for (int number = 0; number < AccountsToCheck(); ++number) {
    RandomAccount& account = accounts.emplace_back(random, std::to_string(number));
    number % 3 == 2 ? account.State() : account.Disclose();
    file.insert(file.end(), account.rows.begin(), account.rows.end());
    balances += account.balances;
    if (account.seen.refusal.empty()) again += account.again;
  }
  const std::string text = RunText(FileOf(file), balances, 1);
  for (const int threads : {2, 5}) EXPECT_TRUE(RunText(FileOf(file), balances, threads) == text);
  const auto results = RowsOf(text);
  // Written as rows and read again, a check gives the same figures.
  std::map<std::string, std::vector<NamedCells>> repeated;
  for (const NamedCells& row : RowsOf(RunText(again, {}, 2))) {
    repeated[row.at("account")].push_back(row);
  }
  ASSERT_EQ(results.size(), file.size());
  std::size_t line = 2, place = 0;
  int passed = 0;
  std::set<std::string> refusals;
  for (const RandomAccount& account : accounts) {
    const Seen& seen = account.seen;
    for (std::size_t row = 0; row < account.rows.size(); ++row, ++line) {
      const NamedCells& result = results[place++];
      const ::testing::ScopedTrace trace(__FILE__, __LINE__,
                                         FileOf(account.rows) + account.balances);
      std::string message = row == 0 ? seen.notices : "";
      if (!seen.refusal.empty() && row == seen.refusedRow) {
        message +=
            (message.empty() ? "" : " ") + ("Line " + std::to_string(line) + ": ") + seen.refusal;
      }
      ASSERT_EQ(result.at("message"), message);
      for (const char* column :
           {"computed_interest", "computed_apy", "computed_interest_high", "computed_apy_high"}) {
        const auto figure = seen.figures.find({row, column});
        const bool shown = seen.refusal.empty() && figure != seen.figures.end();
        ASSERT_EQ(result.at(column), shown ? figure->second : "") << column;
        if (seen.refusal.empty()) {
          ASSERT_EQ(repeated[result.at("account")].at(row).at(column), result.at(column))
              << column << repeated[result.at("account")].at(0).at("message");
        }
      }
    }
    passed += seen.refusal.empty();
    refusals.insert(seen.refusal);
  }
  EXPECT_GT(passed, AccountsToCheck() / 10);
  EXPECT_GT(refusals.size(), 25u);
}

}  // namespace
}  // namespace corvane
