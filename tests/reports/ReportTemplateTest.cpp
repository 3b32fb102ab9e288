#include "reports/ReportTemplate.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using Lines = std::vector<std::string>;

const MarkedRows kNumberedRows = {kRowMarker, [](int occurrence) {
                                    return Rows{"row " + std::to_string(occurrence) + "a", "row b"};
                                  }};

const ReportContent kContent = {{{"^name^", {"Bank"}},
                                 {"^blank^", {""}},
                                 {"^self^", {"^self^"}},
                                 {"^grow^", {"x^grow^"}},
                                 {"^nested^", {"<^name^>"}},
                                 {"^caret^", {"A^B"}},
                                 {"^days^", {"365", "<br>end"}}},
                                {kNumberedRows, SameRows(kSecondRowMarker, {"second ^name^"})}};

const struct {
  const char* about;
  Lines input, expected, unknown;
} kCases[] = {
    {"text without tags is copied", {"one", "", " two "}, {"one", "", " two "}, {}},
    {"tags fill from left to right", {"a^name^b^blank^^name^"}, {"aBankbBank"}, {}},
    {"an unknown tag, once per occurrence",
     {"^Name^ ^name^ ^x^", "^Name^"},
     {"? Bank ?", "?"},
     {"^Name^", "^x^", "^Name^"}},
    {"a value is searched again", {"^nested^"}, {"<Bank>"}, {}},
    {"a typed caret starts a tag", {"^caret^ ^name^"}, {"A?name^"}, {"^B ^"}},
    {"a typed caret without partner stays", {"^caret^"}, {"A^B"}, {}},
    {"two carets are an empty tag", {"a^^b"}, {"a?b"}, {"^^"}},
    {"the line's end comes after its rest", {"<^days^ ^name^>"}, {"<365 Bank><br>end"}, {}},
    {"a marker line is dropped whole",
     {"a", "x ^datarow^ ^name^ y", "b"},
     {"a", "row 1a", "row b", "b"},
     {}},
    {"the line after a marker line is no marker",
     {"^datarow^", "^datarow^", "^datarow^"},
     {"row 1a", "row b", "?", "row 2a", "row b"},
     {"^datarow^"}},
    {"rows are never searched, lines after them are, markers count apart",
     {"^datarow2^", "^name^", "^datarow^", "-"},
     {"second ^name^", "Bank", "row 1a", "row b", "-"},
     {}},
};

TEST(ReportTemplate, IsFilled) {
  for (const auto& c : kCases) {
    const FilledTemplate report = FillTemplate(c.input, kContent);
    EXPECT_EQ(report.lines, c.expected) << c.about;
    EXPECT_EQ(report.unknownTags, c.unknown) << c.about;
  }
}

TEST(ReportTemplate, TheHundredAndFirstReplacementOfALineIsLiteral) {
  const auto repeated = [](int count, const std::string& text) {
    std::string all;
    for (; count > 0; --count) all += text;
    return all;
  };
  const Lines filled =
      FillTemplate({"^self^", "^grow^", repeated(101, "^name^"), "^name^"}, kContent).lines;
  EXPECT_EQ(filled, (Lines{"^self^", repeated(100, "x") + "^grow^",
                           repeated(100, "Bank") + "^name^", "Bank"}))
      << "each line counts for itself";
}

TEST(ReportTemplate, AReportWithOneMarkerTakesTheOtherForATag) {
  EXPECT_EQ(FillTemplate({"^datarow2^"}, {{}, {kNumberedRows}}).unknownTags, Lines{"^datarow2^"});
}

}  // namespace
}  // namespace corvane
