#include "account/DateEntry.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(DateEntry, ASeparatorCompletesThePartBeforeTheCursor) {
  const struct {
    const char* text;
    int cursor;
    const char* completed;
    int next;
  } cases[] = {
      {"1_-__-____", 1, "01-__-____", 3}, {"_1-__-____", 2, "01-__-____", 3},
      {"01-5_-____", 4, "01-05-____", 6}, {"12-31-____", 2, "12-31-____", 3},
      {"12-31-2026", 1, "01-31-2026", 3},  // typed over what stood there
      {"__-__-____", 0, "__-__-____", 0}, {"01-__-____", 3, "01-__-____", 3},
      {"01-05-____", 6, "01-05-____", 6}, {"01-05-26__", 8, "01-05-26__", 8},
      {"20-26-____", 6, "__-__-2026", 0}, {"12-31-____", 6, "12-31-____", 6},
      {"20-2_-____", 4, "20-02-____", 6},
  };
  for (const auto& c : cases) {
    const MaskedDate completed = AfterSeparator({c.text, c.cursor});
    EXPECT_EQ(completed.text, c.completed) << c.text << " at " << c.cursor;
    EXPECT_EQ(completed.cursor, c.next) << c.text << " at " << c.cursor;
  }
}

TEST(DateEntry, ACopiedDateIsReadMonthFirstOrYearFirst) {
  for (const char* text : {"1/5/2026", "01-05-2026", "1.5.2026", "2026-01-05", "2026/1/5",
                           "01052026", " 1/05/2026\t\r\n", "\u00a001/5/2026"}) {
    const auto date = ReadPastedDate(text);
    EXPECT_EQ(date ? FormatDate(*date) : "", "01-05-2026") << text;
  }
  for (const char* text :
       {"", "1/5/26", "31.12.2026", "2/29/2026", "1/5-2026", "1/5/2026/", "1/5", "2026-1",
        "1 5 2026", "1/5/2026 - 2/5/2026", "2026-01-05 00:00", "001/5/2026", "/5/2026", "1//2026",
        "1/5/1900", "2026", "20260105", "Jan 5, 2026", "-1/5/2026"}) {
    EXPECT_FALSE(ReadPastedDate(text).has_value()) << text;
  }
}

TEST(DateEntry, TheCountNamesItsDaysAndWhatItLeavesOut) {
  const struct {
    const char *start, *end;
    bool countsLeapDay;
    const char* text;
  } cases[] = {
      {"10-01-2026", "10-31-2026", false, "30 days, Oct 1 to Oct 30 (end date not counted)"},
      {"10-01-2026", "10-02-2026", true, "1 day, Oct 1 (end date not counted)"},
      {"12-15-2026", "01-01-2027", true, "17 days, Dec 15 to Dec 31 (end date not counted)"},
      {"12-15-2026", "01-02-2027", true,
       "18 days, Dec 15, 2026 to Jan 1, 2027 (end date not counted)"},
      {"02-01-2024", "03-01-2024", true, "29 days, Feb 1 to Feb 29 (end date not counted)"},
      {"02-01-2024", "03-01-2024", false,
       "28 days, Feb 1 to Feb 29 (end date and Feb 29 not counted)"},
      {"01-01-2024", "01-01-2029", false,
       "1825 days, Jan 1, 2024 to Dec 31, 2028 (end date and 2 times Feb 29 not counted)"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(DateCountText(*ParseDate(c.start), *ParseDate(c.end), c.countsLeapDay), c.text);
  }
}

}  // namespace
}  // namespace corvane
