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

}  // namespace
}  // namespace corvane
