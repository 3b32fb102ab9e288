#include "support/NumberText.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(NumberText, OnlyPlainDecimalTextIsANumber) {
  const std::pair<const char*, double> numbers[] = {
      {" 5.25 ", 5.25}, {"+5", 5}, {"-.5", -.5}, {"5.", 5}, {"007", 7}};
  for (const auto& [text, value] : numbers) {
    EXPECT_TRUE(IsNumeric(text)) << text;
    EXPECT_EQ(NumericValue(text), value) << text;
  }
  EXPECT_TRUE(IsNumeric("0." + std::string(400, '0') + "1"));
  for (const char* text : {"", " ", ".", "-", "1,000", "1e3", "$5", "5%", "1.2.3", "--5", "5-",
                           "0x10", "nan", "inf", "1 2"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_EQ(NumericValue(text), 0) << text;
  }
  EXPECT_FALSE(IsNumeric("-" + std::string(400, '9'))) << "too large";
}

TEST(NumberText, WholeNumbersRoundHalfToEvenAndFitSixteenBits) {
  EXPECT_EQ(WholeNumber("2.5"), 2);
  EXPECT_EQ(WholeNumber("32767"), 32767);
  EXPECT_EQ(WholeNumber("-32768"), -32768);
  for (const char* text : {"32768", "32767.6", "-32769", "99999999999999999999", "x", ""}) {
    EXPECT_FALSE(WholeNumber(text).has_value()) << text;
  }
}

TEST(NumberText, Formats) {
  using Texts = std::vector<std::pair<double, const char*>>;
  const std::pair<std::string (*)(double), Texts> formats[] = {
      {FormatFixed2, {{1234.5, "1234.50"}, {2.675, "2.68"}, {-0.001, "0.00"}}},
      {FormatGrouped2, {{999.999, "1,000.00"}, {-123.4, "-123.40"}, {-123456.7, "-123,456.70"}}},
      {FormatGroupedWhole, {{0, "0"}, {1234567.5, "1,234,568"}}},
      {FormatRate, {{5, "5.00"}, {5.1234, "5.1234"}, {10.1, "10.10"}, {5.123, "5.123"}}},
      {FormatTerm, {{0.5, ".50"}, {365, "365.00"}}},
      {FormatTwoDigits, {{3, "03"}, {12, "12"}}},
      {FormatWhole, {{12.4, "12"}}},
      {FormatDollars, {{0, "$.00"}, {-5, "-$5.00"}, {-0.25, "-$.25"}, {1234.5, "$1,234.50"}}},
      {FormatPlain, {{365, "365"}, {4.5, "4.5"}}},
  };
  for (const auto& [format, texts] : formats) {
    for (const auto& [value, text] : texts) EXPECT_EQ(format(value), text);
  }
  EXPECT_EQ(RewriteFixed2(" 5.5"), "5.50");
  for (const char* noNumber : {"", "-"}) EXPECT_EQ(RewriteFixed2(noNumber), noNumber);
}

}  // namespace
}  // namespace corvane
