#include "shell/NumericEntry.h"

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
      {u"0.50", 0, 4, U".-5", U""},
      {u"0.50", 1, 1, U".", U""},
      {u"0.50", 2, 2, U"-", U"."},
      {u"-5", 0, 1, U"-.", U""},
      {u"-5", 1, 1, U".", U"-"},
  };
  for (const auto& c : cases) {
    const TypedInto field{c.text, c.start, c.length};
    const auto shown = testing::PrintToString(c.text) + " at " + std::to_string(c.start);
    for (char32_t code : c.accepted) {
      EXPECT_TRUE(FilterNumericKey(code, field)) << shown << unsigned(code);
    }
    for (char32_t code : c.refused) {
      EXPECT_FALSE(FilterNumericKey(code, field)) << shown << unsigned(code);
    }
  }
}

TEST(NumericEntry, OnlyAMinusBehindTheFirstPlaceIsTakenOut) {
  const struct {
    const char16_t *text, *repaired;
  } cases[] = {{u"", u""},      {u"-12", u"-12"},   {u"12-3", u"123"},
               {u"12-", u"12"}, {u"-1-2", u"-1-2"}, {u"1-2-3", u"12-3"}};
  for (const auto& c : cases) EXPECT_EQ(FixMinusSign(c.text), c.repaired);
}

TEST(NumericEntry, TooManyDecimalsAreCutWithTheMessageOfTheirKind) {
  const struct {
    const char16_t* text;
    int most;
    const char *kind, *label;  // the label is null where nothing is cut
    const char16_t* left;
  } cases[] = {
      {u"10.005", 2, "bal", "Balance ", u"10.00"},
      {u"5.12345", 4, "int", "Interest Rate ", u"5.1234"},
      {u"1.2.3", 2, "userint", "Interest ", u"1.2."},
      {u".999", 2, "apy", "APY ", u".99"},
      {u"1.23", 1, "other", "", u"1.2"},
      {u"1.23", 2, "bal", nullptr, u"1.23"},
      {u"123456789012345678901234567890", 2, "bal", nullptr, u"123456789012345678901234567890"},
      {u"", 2, "bal", nullptr, u""},
  };
  for (const auto& c : cases) {
    const LimitedText limited = LimitDecimals(c.text, c.most, c.kind);
    EXPECT_EQ(limited.text, c.left);
    ASSERT_EQ(limited.message.has_value(), c.label != nullptr) << testing::PrintToString(c.text);
    if (!c.label) continue;
    EXPECT_EQ(limited.message->text, c.label + ("allows a maximum of " + std::to_string(c.most)) +
                                         " decimal places, Your entry has been truncated");
    EXPECT_EQ(limited.message->title, "Key Entry Error");
    EXPECT_EQ(limited.message->icon, MessageIcon::Exclamation);
  }
}

}  // namespace
}  // namespace corvane
