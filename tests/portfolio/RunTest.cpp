#include <gtest/gtest.h>

#include "RunText.h"
#include "support/WholeFile.h"

namespace corvane {
namespace {

const std::string kHeader = "account,kind,disclosed_apy,balance,rate,not_exceeding,term";

/// "account verdict message;" of each row.
std::string Told(const std::string& text) {
  std::string told;
  for (const NamedCells& row : RowsOf(text)) {
    if (!row.contains("verdict")) continue;
    told += row.at("account") + " " + row.at("verdict") + " " + row.at("message") + ";";
  }
  const std::size_t note = text.rfind("The l");
  return told + (note == text.npos ? "" : text.substr(note));
}

TEST(PortfolioRun, DamagedFilesKeepTheirGoodRowsAndTellTheLineOfTheOthers) {
  const std::string a = "A,,5.39,1000,5.25,,365\n", b = "B,,5.39,1000,5.25,,365\n";
  const std::string huge(10'000'000, '9');
  const std::string ok = "A OK ;B OK ;";
  const std::string refused = "A OK ; REFUSED Line 3: ";
  const struct {
    const char* what;
    std::string text, told;
  } cases[] = {
      {"sound", a + b, ok},
      {"a mark is no part of the first name", a + b, ok},
      {"cut in a row", a + b + "C,,5.3",
       ok + "C REFUSED Line 4: The row has 3 cells and the header 7.;The last line has no end; the "
            "file may be cut there.\n"},
      {"cut in the last cell", a + "B,,5.39,1000,5.25,,365",
       ok + "The last line has no end; the file may be cut there.\n"},
      {"NUL", a + std::string("C,,5.39,10\0\0,5.25,,365\n", 23) + b,
       "A OK ;C REFUSED Line 3: The row holds a NUL character.;B OK ;"},
      {"10 MB on one line", a + huge + "\n" + b,
       refused + "The row is longer than 65,536 bytes.;B OK ;"},
      {"mixed line ends", a + "C,,5.39,1000,5.25,,365\r\n" + b,
       "A OK ;C OK ;B OK ;The line ends otherwise than the lines above.\n"},
      {"a quote that is not closed", a + "C,\"regular,5.39,1000,5.25,,365\n" + b,
       "A OK ;C REFUSED Line 3: A quote is opened here and not closed.;B OK ;"},
      {"a wrong quote", a + "\"C\"1,regular,5.39,1000,5.25,,365\n" + b,
       refused +
           "A quote is opened here, and behind the one that closes it the cell goes on.;B OK ;"},
      {"the header again", a + kHeader + "\n" + b,
       "A OK ;account REFUSED Line 3: The header stands here again.;B OK ;"},
      {"too many cells", a + "C,,5.39,1000,5.25,,365,1\n" + b,
       "A OK ;C REFUSED Line 3: The row has 8 cells and the header 7.;B OK ;"},
      {"Latin-1", a + "C\xE9,,5.39,1000,5.25,,365\n" + b,
       "A OK ;C\xE9 REFUSED Line 3: The row is not UTF-8 text.;B OK ;"},
      {"damage within an account",
       "A,tier-a,5.39,1000,5.25,2500,365\nA,tier-a,5.65,8\n" + huge +
           "\nA,tier-a,5.92,18000,5.75,,365\n" + b,
       "A REFUSED ;A REFUSED Line 3: The row has 4 cells and the header 7.; REFUSED Line 4: The "
       "row "
       "is longer than 65,536 bytes.;A REFUSED ;B OK ;"},
      {"damage before an account",
       huge + "\nA,tier-a,5.39,1000,5.25,2500,365\nA,tier-a,5.92,18000,5.75,,365\n" + b,
       " REFUSED Line 2: The row is longer than 65,536 bytes.;A REFUSED ;A REFUSED ;B OK ;"},
  };
  for (const auto& [what, text, told] : cases) {
    const std::string mark = std::string(what).starts_with("a mark") ? "\xEF\xBB\xBF" : "";
    EXPECT_EQ(Told(RunText(mark + kHeader + "\n" + text)), told) << what;
  }
}

TEST(PortfolioRun, RefusesFilesThatHaveNoUsableHeader) {
  const std::pair<std::string, const char*> cases[] = {
      {"", "The file is empty."},
      {"A,regular,5.39\n", "The first line names no column such as account, balance or rate."},
      {"account,balance,account\n", "The column \"account\" stands twice."},
      {std::string("\xFF\xFE"
                   "a\0c\0",
                   6),
       "The file is UTF-16. Please save it as UTF-8."},
      {std::string("a\0c\0c\0", 6), "The row holds a NUL character."},
      {"account,balance\rA,1\r", "Lines end in CR alone. Please save the file with LF or CR LF."},
  };
  for (const auto& [text, refusal] : cases) EXPECT_EQ(RunText(text), refusal);
}

TEST(PortfolioRun, TypesCellsAsAPersonWouldAndRefusesWhatHasNoPlace) {
  const std::string file =
      "account,check,kind,compounding,every,disclosed_apy,balance,rate,not_exceeding,term,end_"
      "date\n"
      "A,,,,,5.39%,\" $1,000.00 \",5.25%,0,365,\n"
      "B,,,,,5.39,1000.005,5.25,,365,\n"
      "C,,steped,,,5.39,1000,5.25,,365,\n"
      "D,,,,,5.39,\"1.000,00\",5.25,,365,\n"
      "E,,,,,5.39,1000,5.25,2500,365,\n"
      "F,,,none,7,5.39,1000,5.25,,365,\n"
      "G,,tier-a,,,5.39,1000,5.25,2500,365,\nG,,tier-a,,,5.39,3000,5.5,9000,365,\n"
      "H,,tier-a,,,5.39,1000,5.25,2500,365,\n"
      "I,,,,,5.39,1000,5.25,,,02-30-2024\n";
  EXPECT_EQ(
      Told(RunText(file)),
      "A OK ;B OK Balance allows a maximum of 2 decimal places, Your entry has been truncated;"
      "C REFUSED Line 4: The column kind has to be one of: regular, stepped, tier-a, tier-b.;"
      "D REFUSED Line 5: Please enter a valid Principal Balance Amount;"
      "E REFUSED Line 6: The column not_exceeding has to be empty for this account.;"
      "F REFUSED Line 7: The column every has to be empty or 1 here.;"
      "G REFUSED ;G REFUSED Line 9: The column not_exceeding has to be empty for this account.;"
      "H REFUSED Line 10: Please enter a Tier number from 2 to 10 only.;"
      "I REFUSED Line 11: Starting Date is invalid, Please correct;");
}

TEST(PortfolioRun, CarriesOtherCellsThroughAsTheyStandAndReplacesResults) {
  const std::string file =
      "\"account\";verdict;rate;balance;term;disclosed_apy;\"my;remark\"\r\n"
      "\"A \"\"1\"\"\";REFUSED;\"5.25\";\"$1,000\";365;5.39;\"=1+1\r\n, and\"\r\n";
  EXPECT_EQ(
      RunText(file),
      "\"account\";rate;balance;term;disclosed_apy;\"my;remark\";computed_interest;computed_apy;"
      "difference;verdict;note;message;computed_interest_high;computed_apy_high;verdict_high;"
      "computed_average\r\n"
      "\"A \"\"1\"\"\";\"5.25\";\"$1,000\";365;5.39;\"=1+1\r\n, "
      "and\";53.90;5.39;0.00;OK;;;;;;\r\n");
}

TEST(PortfolioRun, AnAccountOfTooManyRowsIsRefusedToItsLast) {
  std::string file = kHeader + "\n";
  for (int row = 0; row < 200; ++row) file += "A,stepped,5,1000,5,,91\n";
  int refused = 0;
  for (const NamedCells& row : RowsOf(RunText(file + "B,,5.39,1000,5.25,,365\n"))) {
    refused += row.at("verdict") == "REFUSED";
    EXPECT_EQ(row.at("verdict"), row.at("account") == "B" ? "OK" : "REFUSED");
  }
  EXPECT_EQ(refused, 200);
}

TEST(PortfolioRun, DaysMayStandInAnotherOrderAndServeSeveralPeriods) {
  const std::string statement = ",statement,1.5,3,2024-01-01,2024-01-03,adb,0,0\n";
  const std::string file =
      "account,check,disclosed_apy,rate,start_date,end_date,method,minimum_adb,minimum_daily\nA" +
      statement + "B" + statement + "B,statement,1.5,3,2024-01-03,2024-01-05,adb,0,0\nC" +
      statement + "D" + statement + "E" + statement;
  const std::string days =
      "date;account;balance\n2024-01-01;B;100\n2024-01-02;B;200\n01/03/"
      "2024;B;300\n01-04-2024;B;400\n"
      "2024-01-01;A;10\n2024-01-02;A;20\n2024-01-01;D;1\n2024-01-01;D;2\n2024-01-01;E;1\n";
  const std::vector<std::string> expected = {
      "15.00",
      "150.00",
      "350.00",
      "Line 5: Please enter an ADB Ledger balance > 0 to continue",
      "Line 6: Line 9 of the daily balances: The day stands there twice.",
      "Line 7: 1 of 2 days have no balance and count as 0. Compute the average all the same?"};
  std::vector<std::string> told;
  for (const NamedCells& row : RowsOf(RunText(file, days))) {
    told.push_back(row.at("message").empty() ? row.at("computed_average") : row.at("message"));
  }
  EXPECT_EQ(told, expected);
}

TEST(PortfolioExamples, GiveTheFiguresThatStandInThem) {
  const auto text = [](const std::string& name) {
    return std::get<std::string>(ReadWholeFile(CORVANE_TESTS "../examples/" + name));
  };
  for (const char* name : {"regular.csv", "stepped.csv", "tiered.csv", "statements.csv"}) {
    int compared = 0;
    for (const NamedCells& row : RowsOf(RunText(text(name), text("balances.csv")))) {
      for (const auto& [column, expected] : row) {
        if (!column.starts_with("expected") || expected.empty()) continue;
        const bool isNote = column == "expected_note";
        EXPECT_EQ(row.at(isNote ? "note" : "computed" + column.substr(8)), expected)
            << name << " " << row.at("account") << row.at("message");
        ++compared;
      }
      const bool isHeldUp = row.at("note").ends_with("This would be OK.");
      EXPECT_EQ(row.at("verdict") == "APY VIOLATION", isHeldUp) << name;
    }
    EXPECT_GT(compared, 5) << name;
  }
}

}  // namespace
}  // namespace corvane
