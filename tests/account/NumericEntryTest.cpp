#include "account/NumericEntry.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(NumericEntry, TheFilterLetsOnePointAndOneMinusInBesideTheSelection) {
  const struct {
    std::u16string text;
    int start, length;
    std::u32string accepted, refused;
  } cases[] = {
      {u"", 0, 0, U"\b0123456789.-", U" +,eE\r\t/x\u0665\uff15"},
      {u"0.50", 0, 0, U"\b7-", U"."},
      {u"0.50", 1, 1, U".", U""},
      {u"0.50", 2, 2, U"-", U"."},
      {u"-5", 1, 1, U".", U"-"},
  };
  for (const auto& c : cases) {
    for (char32_t code : c.accepted + c.refused) {
      const bool passes = c.accepted.find(code) != c.accepted.npos;
      EXPECT_EQ(FilterNumericKey(code, {c.text, c.start, c.length}), passes)
          << testing::PrintToString(c.text) << " at " << c.start << ": " << unsigned(code);
    }
  }
}

TEST(NumericEntry, OnlyAMinusBehindTheFirstPlaceIsTakenOut) {
  const std::pair<std::u16string, std::u16string> cases[] = {
      {u"", u""}, {u"-1-2", u"-1-2"}, {u"1-2-3", u"12-3"}};
  for (const auto& [text, repaired] : cases) EXPECT_EQ(FixMinusSign(text), repaired);
}

TEST(NumericEntry, TooManyDecimalsAreCutWithTheMessageOfTheirKind) {
  const struct {
    const char16_t *text, *left;
    int most;
    const char *kind, *message;
  } cases[] = {
      {u"10.005", u"10.00", 2, "bal", "Balance allows a maximum of 2"},
      {u"5.12345", u"5.1234", 4, "int", "Interest Rate allows a maximum of 4"},
      {u"1.2.3", u"1.2.", 2, "userint", "Interest allows a maximum of 2"},
      {u".999", u".99", 2, "apy", "APY allows a maximum of 2"},
      {u"1.23", u"1.23", 2, "bal", ""},
      {u"12345678901234567890", u"12345678901234567890", 2, "bal", ""},
  };
  for (const auto& c : cases) {
    const LimitedText limited = LimitDecimals(c.text, c.most, c.kind);
    EXPECT_EQ(limited.text, c.left);
    const std::string tail = " decimal places, Your entry has been truncated";
    EXPECT_EQ(limited.message ? limited.message->text : "", *c.message ? c.message + tail : "");
  }
}

TEST(NumericEntry, ACopiedNumberIsTakenAsItWouldBeTypedAndADoubtfulOneNotAtAll) {
  const struct {
    const char* kind;
    std::vector<const char*> pasted;
    const char* number;  ///< empty where it is refused
  } cases[] = {
      {"bal",
       {"1234.56", "$1,234.56", " 1234.56\r\n", "1234.56\t", "\u00a01,234.56\u202f", "$ 1234.56"},
       "1234.56"},
      {"bal", {"-$5.00", "$-5.00", "\u22125.00", "- 5.00"}, "-5.00"},
      {"userint", {"1,234,567", "1234567", "$1,234,567"}, "1234567"},
      {"int", {"5.25%", "5.25 %", "5.25\u00a0%\n", "5.25"}, "5.25"},
      {"apy", {"-.5%", "-.5"}, "-.5"},
      {"", {"1,220", "1220\n"}, "1220"},
      {"bal",
       {"1.234,56", "1,23",      "1,2345", "1,234,5",  "0,123",      ",123",       "1234,567",
        "1,,234",   "1.234,567", "1 2",    "1 234.56", "1\u00a0234", "1.00\n2.00", "1\t2",
        "(5.00)",   "5.00-",     "5-3",    "--5",      "-$-5",       "1.2.3",      "$",
        "-",        ".",         "",       " ",        "\u00a0",     "1e5",        "N/A",
        "5%",       "\u20ac5",   "0x1F",   "\uff15",   "+5",         "\xa0"},
       ""},
      {"int", {"$5.25", "5,125", "1,234%", "5.25%%", "5%5", "%"}, ""},
      {"", {"$5", "5%"}, ""},
  };
  for (const auto& c : cases) {
    for (const char* pasted : c.pasted) {
      EXPECT_EQ(CleanPastedNumber(pasted, c.kind).value_or(""), c.number) << c.kind << pasted;
    }
  }
}

TEST(NumericEntry, APasteIntoATextLeavesANumberOrIsRefused) {
  const TypedInto whole{u"9.99", 0, 4}, end{u"9.9", 3, 0}, front{u"9.9", 0, 0}, part{u"9.9", 1, 1};
  EXPECT_EQ(PastedNumber(whole, "$1,000.50", "bal"), "1000.50");
  EXPECT_EQ(PastedNumber(front, "-1", "bal"), "-1");
  EXPECT_EQ(PastedNumber(part, ".5", "bal"), ".5");
  EXPECT_EQ(PastedNumber(end, ".5", "bal"), std::nullopt);
  EXPECT_EQ(PastedNumber(end, "-5", "bal"), std::nullopt);
}

}  // namespace
}  // namespace corvane
