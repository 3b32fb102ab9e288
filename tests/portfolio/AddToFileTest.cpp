#include "portfolio/AddToFile.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "RunText.h"
#include "TemporaryFolder.h"
#include "disclosure/DisclosureCalculation.h"
#include "disclosure/EntrySequence.h"
#include "portfolio/CheckRows.h"
#include "portfolio/DayRows.h"
#include "portfolio/FileCheck.h"
#include "support/WholeFile.h"

namespace corvane {
namespace {

std::string Content(const std::filesystem::path& file) {
  const auto content = ReadWholeFile(file);
  return std::holds_alternative<std::string>(content) ? std::get<std::string>(content) : "";
}

DisclosureCheck SteppedCheck(int periods) {
  DisclosureCheck check;
  check.setup.kind = AccountKind::Stepped;
  for (int period = 0; period < periods; ++period) {
    DisclosureEntry entry = PresentEntry(check);
    entry.txtTierPerNum.text = "2";
    entry.txtDiscAPY.text = "5.39";
    entry.txtBal.text = "1000";
    entry.txtIntRateA.text = period == 0 ? "5" : "5.5";
    entry.txtTerm.text = period == 0 ? "91" : "92";
    EXPECT_FALSE(AttemptCalculation(check, entry).refusal);
  }
  return check;
}

TEST(AddToFile, AddsAChecksRowsToAFileOfItsColumnsAloneInItsLineEnds) {
  const TemporaryFolder folder;
  const auto file = folder.Path() / "checks.csv";
  std::string header = CheckFileHeader();
  header.pop_back();
  const struct {
    const char* what;
    std::string before;
    const char* account;  ///< empty where the file is refused
  } cases[] = {
      {"new", "", "1"},
      {"an account more", header + "\n1,disclosure\n2,disclosure\n", "3"},
      {"a last line without an end", header + "\n2,disclosure", "1"},
      {"lines of a spreadsheet", "\xEF\xBB\xBF" + header + "\r\n1,disclosure\r\n", "2"},
      {"other columns", "account,balance\n1,1000\n", ""},
      {"columns behind those", header + ",verdict\n", ""},
  };
  for (const auto& [what, before, account] : cases) {
    SCOPED_TRACE(what);
    std::filesystem::remove(file);
    if (!before.empty()) WriteWholeFile(file, before);
    const AddOutcome outcome = AddToFile(file, {"A, B", "", "", ""}, SteppedCheck(2));
    const std::string after = Content(file);
    if (!*account) {
      const auto* refusal = std::get_if<Refusal>(&outcome);
      EXPECT_TRUE(refusal && refusal->text.find("checks.csv\nIts first line") != std::string::npos);
      EXPECT_EQ(after, before);
      continue;
    }
    ASSERT_TRUE(std::holds_alternative<std::string>(outcome));
    EXPECT_TRUE(after.starts_with(before));
    EXPECT_EQ(std::ranges::count(after, '\r'), before.find('\r') == before.npos ? 0 : 4);
    const std::vector<NamedCells> rows = RowsOf(RunText(after));
    ASSERT_FALSE(rows.empty());
    const NamedCells& last = rows.back();
    EXPECT_EQ(last.at("account"), account);
    EXPECT_EQ(last.at("institution"), "A, B");
    EXPECT_EQ(last.at("computed_apy") + last.at("verdict"), "5.39OK");
  }
}

TEST(AddToFile, ANumberThatOnlyTheDaysBesideHaveIsTaken) {
  const TemporaryFolder folder;
  const auto file = folder.Path() / "checks.csv";
  WriteWholeFile(BalancesBeside(file), kDayColumns + std::string("\n1,01-01-2026,5,\n"));
  AddToFile(file, {}, NewStatementCheck());
  EXPECT_EQ(RowsOf(Content(file)).back().at("account"), "2");
}

TEST(AddToFile, RefusesAnAccountThatIsNotCompleteAndAFolder) {
  const TemporaryFolder folder;
  const auto file = folder.Path() / "checks.csv";
  EXPECT_TRUE(std::holds_alternative<Refusal>(AddToFile(file, {}, SteppedCheck(1))));
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_TRUE(std::holds_alternative<Refusal>(AddToFile(folder.Path(), {}, SteppedCheck(2))));
}

}  // namespace
}  // namespace corvane
