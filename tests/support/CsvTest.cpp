#include "support/Csv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace corvane {
namespace {

/// "line:cell|cell;" of every record, "line!damage;" of a damaged one.
std::string Read(std::string_view text, std::size_t atOnce, CsvFormat format = {}) {
  CsvReader::Source all = CsvSourceOf(text);
  CsvReader reader(
      [&](std::span<char> block) { return all(block.first(std::min(atOnce, block.size()))); },
      format);
  std::string told, buffer;
  while (const CsvRecord* record = reader.Next()) {
    told += std::to_string(record->line);
    if (record->damage != CsvDamage::None) told += std::string("!") + DamageText(record->damage);
    const char* mark = ":";
    const bool isSound = record->damage == CsvDamage::None;
    for (const std::string_view cell : isSound ? record->cells : std::vector<std::string_view>{}) {
      told.append(mark).append(CsvText(cell, buffer));
      mark = "|";
    }
    told += ";";
  }
  return told;
}

const std::string kLong(kLongestRecord, 'x');
const std::string kHuge(10'000'000, 'y');

TEST(Csv, ReadsWhatIsSoundAndTellsTheLineOfWhatIsNot) {
  const std::string open = "!A quote is opened here and not closed.;";
  const std::string behind =
      "!A quote is opened here, and behind the one that closes it the cell goes on.;";
  const std::string tooLong = "!The row is longer than 65,536 bytes.;";
  const struct {
    const char* what;
    std::string text, read;
  } cases[] = {
      {"nothing", "", ""},
      {"a mark, CR LF and no last end",
       "\xEF\xBB\xBF"
       "a,b\r\n1,\r\n,2",
       "1:a|b;2:1|;3:|2;"},
      {"semicolons", "a;b;c,d\n1;2;3\n", "1:a|b|c,d;2:1|2|3;"},
      {"tabs beside a separator in quotes", "a\t\"b,,c\"\n", "1:a|b,,c;"},
      {"the first line that has a separator tells it", "a\nb;c,d;e\n", "1:a;2:b|c,d|e;"},
      {"quotes, doubled and with line breaks", "a,\"b\"\"\r\n\"\"c\"\n\"\",2\n",
       "1:a|b\"\r\n\"c;3:|2;"},
      {"quotes that begin no cell", "a,5\" pipe\n", "1:a|5\" pipe;"},
      {"empty lines, mixed ends", "a\n\r\n\nb\r\nc\n", "1:a;4:b;5:c;"},
      {"an open quote", "a,b\n1,\"2\n3,4\n", "1:a|b;2" + open + "3:3|4;"},
      {"an open quote before a sound one", "a,b\n1,\"2\n3,\"4\"\n", "1:a|b;2" + behind + "3:3|4;"},
      {"an open quote behind a broken line", "\"a\nb\",\"c\nd\n", "1" + open + "3:d;"},
      {"cut within a quote", "a,b\n1,\"2", "1:a|b;2" + open},
      {"a quote that closes too early", "a,b\n\"1\"2,3\n4,5\n", "1:a|b;2" + behind + "3:4|5;"},
      {"a blank behind a quote", "\"1\" ,3\n", "1" + behind},
      {"NUL", std::string("a\nb\0c\nd\n", 8), "1:a;2!The row holds a NUL character.;3:d;"},
      {"Latin-1",
       "a\ncr\xE9"
       "dit\ncr\xC3\xA9"
       "dit\n\xED\xA0\x80\n",
       "1:a;2!The row is not UTF-8 text.;3:cr\xC3\xA9"
       "dit;4!The row is not UTF-8 text.;"},
      {"the longest line", kLong + "\nb\n", "1:" + kLong + ";2:b;"},
      {"a line too long", kLong + "x\nb\n", "1" + tooLong + "2:b;"},
      {"10 MB on one line", "a\n" + kHuge + "\nb\n" + kHuge, "1:a;2" + tooLong + "3:b;4" + tooLong},
      {"10 MB behind a quote", "a\n\"" + kHuge + "\nb\n", "1:a;2" + tooLong + "3:b;"},
      {"a long record of two lines", "\"a\n" + kLong + "\"\nb\n",
       "1" + open + "2!The row is longer than 65,536 bytes.;3:b;"},
  };
  for (const auto& [what, text, read] : cases) {
    for (const std::size_t atOnce :
         {std::size_t{7}, std::size_t{70000}, std::size_t{100'000'000}}) {
      if (atOnce == 7 && text.size() > 1'000'000) continue;
      EXPECT_TRUE(Read(text, atOnce) == read)
          << what << ", " << atOnce << " bytes at once: " << Read(text, atOnce).substr(0, 500);
    }
  }
  EXPECT_STRNE(CsvReader(CsvSourceOf(std::string_view("\xFF\xFE"
                                                      "a\0",
                                                      4)))
                   .Refusal(),
               "");
}

TEST(Csv, EmptyLinesAndTheSeparatorAreReadAsToldTo) {
  const CsvFormat cells{.separator = '\t', .keepsEmptyLines = true};
  EXPECT_EQ(Read("\n1;2\t3\r\n\r\n\n4\n", 3, cells), "1:;2:1;2|3;3:;4:;5:4;");
}

TEST(Csv, WhatIsWrittenIsReadAgain) {
  std::mt19937 random(7);
  const std::string letters = "ab,;\t\"\r\n 1";
  std::string text = "x,y,z\n", expected = "1:x|y|z;";
  std::size_t line = 2;
  for (int row = 0; row < 500; ++row) {
    expected += std::to_string(line) + ":";
    for (int column = 0; column < 3; ++column) {
      std::string cell = column == 0 ? "-" : "";
      for (auto length = random() % 6; length > 0; --length)
        cell += letters[random() % letters.size()];
      line += static_cast<std::size_t>(std::ranges::count(cell, '\n'));
      AppendCsvCell(text, cell, ',');
      text += column < 2 ? "," : "\n";
      expected += cell + (column < 2 ? "|" : ";");
    }
    ++line;
  }
  EXPECT_EQ(Read(text, 50), expected);
}

}  // namespace
}  // namespace corvane
