#include <gtest/gtest.h>

#include <cstdlib>

#include "TemporaryFolder.h"
#include "disclosure/DisclosureTable.h"
#include "reports/DisclosureReport.h"
#include "reports/InterestReport.h"
#include "reports/StatementReport.h"

namespace corvane {
namespace {

// Writes reports of many accounts to the folder that recompute.py names, which computes their
// figures again from nothing but their text. Without such a folder they are written all the same.

const AccountHeader kHeader = {"First National Bank", "Certificate", "Holder", "123"};
const Date kToday = *ParseDate("03-07-2024");

class ReportFigures : public testing::Test {
 protected:
  void Write(const ReportNames& names, const ReportContent& content) {
    const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
    const auto file = folder_ / (test + std::to_string(++written_) + std::string(names.outputName));
    const auto report = WriteReport(
        std::filesystem::path(CORVANE_TEMPLATE_FOLDER) / names.templateName, file, content);
    EXPECT_TRUE(report.messages.empty() && report.text) << file;
    for (const auto& [tag, value] : content.tags) {
      EXPECT_NE(listed_.find("`" + tag + "`"), std::string::npos) << tag << " is in no list";
    }
  }

  int written_ = 0;

 private:
  const std::string listed_ =
      std::get<std::string>(ReadWholeFile(CORVANE_TESTS "../docs/templates.md"));
  const TemporaryFolder temporary_;
  const char* named_ = std::getenv("CORVANE_REPORT_FIGURES");
  const std::filesystem::path folder_ = named_ ? named_ : temporary_.Path();
};

TEST_F(ReportFigures, OfDisclosures) {
  DisclosurePerson person;
  const auto write = [&] {
    if (!person.Check().result) return;
    Write(kDisclosureReport, DisclosureReport(kHeader, person.Check(), kToday));
  };
  for (const char* table : {"disclosure/Notes.txt", "reports/Figures.txt"}) {
    RunChecks(table, ValuesOf(person, write));
  }
  EXPECT_GT(written_, 30);
}

StatementCheck StatementOf(AccountKind kind, BalanceMethod method, const char* every) {
  StatementCheck check = NewStatementCheck();
  check.setup.kind = kind;
  ChooseCompounding(check.setup, std::string(every) == "0" ? Unit::None : Unit::Days);
  if (check.setup.compounding == Unit::Days) check.setup.txtDCompounding.text = every;
  if (check.setup.compounding == Unit::None) check.setup.year.countsLeapDay = true;
  check.tiers = {3, {{{"1.05", "1000"}, {"4.1265", "2500"}, {"5.75", ""}}}};
  check.entry = PresentEntry(check.setup, check.entry);
  check.entry.method = LocksMethod(check.setup) ? BalanceMethod::DailyBalance : method;
  check.entry.txtDateStart.text = "02-20-2024";
  check.entry.txtDateEnd.text = "03-31-2024";
  check.entry.txtMinADB.text = check.entry.txtMinDBal.text = "0";
  check.entry.txtDClApy.text = "3.65";
  if (check.entry.txtIntRate.enabled) check.entry.txtIntRate.text = "3.65";
  check.entry.txtLedgerdays.text = "0";
  return check;
}

void EnterDays(DailyBalances& daily) {
  for (std::size_t day = 0; day < daily.days.size(); ++day) {
    const double balance = day % 9 == 4 ? -50 : 900 + 613.37 * static_cast<double>(day * day % 9);
    EnterBalance(daily, day, FormatFixed2(balance));
    if (daily.TakesRates()) daily.days[day].rate = day < 20 ? "2.5" : "2.75";
  }
  FillRates(daily);
}

TEST_F(ReportFigures, OfStatementsAndTheirDays) {
  using enum AccountKind;
  using enum BalanceMethod;
  for (const AccountKind kind : {Regular, Stepped, TierA, TierB}) {
    for (const BalanceMethod method : {AverageDailyBalance, DailyBalance}) {
      for (const char* every : {"0", "1", "30"}) {
        StatementCheck check = StatementOf(kind, method, every);
        ASSERT_FALSE(StartCompute(check, BalanceColumn::Ledger).refusal);
        DailyBalances daily = DaysOf(check, BalanceColumn::Ledger, kToday);
        EnterDays(daily);
        FinishCompute(check, daily, std::get<ComputedDays>(ComputeAdb(daily)));
        ASSERT_EQ(Said(CalculateStatement(check)), "ok");
        Write(kStatementReport, StatementReport(kHeader, check, kToday));
        Write(kInterestReport, InterestReport(kHeader, check, daily, kToday));
      }
    }
  }
}

TEST_F(ReportFigures, OfTypedAveragesAndInterest) {
  for (const char* minimum : {"0", "5"}) {
    StatementCheck check = StatementOf(AccountKind::Regular, BalanceMethod::DailyBalance, "0");
    ChooseAdditionalFormula(check.setup, minimum[0] == '0');
    check.setup.txtDCPeriod.text = check.setup.additionalFormula ? "91" : "";
    check.entry.txtMinADB.text = check.entry.txtMinDBal.text = minimum;
    check.entry.txtADBLedgerBalance.text = "10000";
    check.entry.txtIntAmt.text = "12.50";
    // Both minimums are told, and computed all the same.
    EXPECT_TRUE(Said(CalculateStatement(check)).ends_with("ok"));
    ASSERT_TRUE(check.result);
    Write(kStatementReport, StatementReport(kHeader, check, kToday));
  }
}

}  // namespace
}  // namespace corvane
