#include "support/NumberText.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(NumberText, OnlyPlainDecimalTextIsANumber) {
  for (const char* text : {"5", " 5.25 ", "+5", "-.5", "5.", ".5", "007"}) {
    EXPECT_TRUE(IsNumeric(text)) << text;
  }
  const std::string tooLarge(400, '9');
  for (const std::string& text : {tooLarge, "-" + tooLarge}) EXPECT_FALSE(IsNumeric(text));
  EXPECT_TRUE(IsNumeric("0." + std::string(400, '0') + "1"));
  for (const char* text : {"", " ", ".", "-", "1,000", "1e3", "$5", "5%", "1.2.3", "--5", "5-",
                           "0x10", "nan", "inf", "1 2"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_EQ(NumericValue(text), 0) << text;
  }
  EXPECT_EQ(NumericValue(" -12.50 "), -12.5);
  EXPECT_EQ(NumericValue("+7"), 7);
}

TEST(NumberText, WholeNumbersRoundHalfToEvenAndFitSixteenBits) {
  EXPECT_EQ(WholeNumber("2.5"), 2);
  EXPECT_EQ(WholeNumber("3.5"), 4);
  EXPECT_EQ(WholeNumber("32767"), 32767);
  EXPECT_EQ(WholeNumber("-32768"), -32768);
  for (const char* text : {"32768", "32767.6", "-32769", "99999999999999999999", "x", ""}) {
    EXPECT_FALSE(WholeNumber(text).has_value()) << text;
  }
}

TEST(NumberText, Formats) {
  EXPECT_EQ(FormatFixed2(1234.5), "1234.50");
  EXPECT_EQ(FormatFixed2(2.675), "2.68");
  EXPECT_EQ(FormatFixed2(-0.001), "0.00");
  EXPECT_EQ(FormatGrouped2(999.999), "1,000.00");
  EXPECT_EQ(FormatGrouped2(1234567.891), "1,234,567.89");
  EXPECT_EQ(FormatGrouped2(-123.4), "-123.40");
  EXPECT_EQ(FormatGrouped2(-123456), "-123,456.00");
  EXPECT_EQ(FormatGroupedWhole(0), "0");
  EXPECT_EQ(FormatGroupedWhole(1234567.5), "1,234,568");
  EXPECT_EQ(FormatRate(5), "5.00");
  EXPECT_EQ(FormatRate(5.1234), "5.1234");
  EXPECT_EQ(FormatRate(5.12), "5.12");
  EXPECT_EQ(FormatRate(5.123), "5.123");
  EXPECT_EQ(FormatRate(10.1), "10.10");
  EXPECT_EQ(FormatTerm(0.5), ".50");
  EXPECT_EQ(FormatTerm(0), ".00");
  EXPECT_EQ(FormatTerm(365), "365.00");
  EXPECT_EQ(FormatTwoDigits(3), "03");
  EXPECT_EQ(FormatTwoDigits(12), "12");
  EXPECT_EQ(FormatWhole(12.4), "12");
  EXPECT_EQ(FormatDollars(0), "$.00");
  EXPECT_EQ(FormatDollars(-5), "-$5.00");
  EXPECT_EQ(FormatDollars(-0.25), "-$.25");
  EXPECT_EQ(FormatDollars(0.995), "$1.00");
  EXPECT_EQ(FormatDollars(100), "$100.00");
  EXPECT_EQ(FormatDollars(1234567.891), "$1,234,567.89");
  EXPECT_EQ(FormatPlain(365), "365");
  EXPECT_EQ(FormatPlain(4.5), "4.5");
}

TEST(NumberText, TheRewriteLeavesTextThatIsNoNumberAsTyped) {
  EXPECT_EQ(RewriteFixed2("1000"), "1000.00");
  EXPECT_EQ(RewriteFixed2(" 5.5"), "5.50");
  EXPECT_EQ(RewriteFixed2(""), "");
  EXPECT_EQ(RewriteFixed2("-"), "-");
}

}  // namespace
}  // namespace corvane
