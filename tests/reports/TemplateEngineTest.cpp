#include "reports/TemplateEngine.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using Lines = std::vector<std::string>;

ReportContent SmallContent() {
  return {ResolveFrom({{"^name^", {"Bank", ""}},
                       {"^blank^", {"", ""}},
                       {"^self^", {"^self^", ""}},
                       {"^grow^", {"x^grow^", ""}},
                       {"^nested^", {"<^name^>", ""}},
                       {"^caret^", {"A^B", ""}},
                       {"^days^", {"365", "<br>end"}}}),
          [](std::string_view marker, int occurrence) -> Lines {
            if (marker == kSecondRowMarker) return {"second ^name^"};
            return {"row " + std::to_string(occurrence) + "a", "row b"};
          },
          {kRowMarker, kSecondRowMarker}};
}

const struct {
  const char* about;
  Lines input, expected, unknown;
} kCases[] = {
    {"text without tags is copied", {"one", "", " two "}, {"one", "", " two "}, {}},
    {"tags fill from left to right", {"a^name^b^blank^c^name^"}, {"aBankbcBank"}, {}},
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

TEST(TemplateEngine, FillsTemplates) {
  for (const auto& c : kCases) {
    const BuiltReport report = BuildReport(c.input, SmallContent());
    EXPECT_EQ(report.lines, c.expected) << c.about;
    EXPECT_EQ(report.unknownTags, c.unknown) << c.about;
    std::string joined;
    for (const std::string& line : c.expected) joined += line;
    EXPECT_EQ(report.text, joined) << c.about;
  }
}

TEST(TemplateEngine, TheHundredAndFirstReplacementOfALineIsLiteral) {
  const auto repeated = [](int count, const std::string& text) {
    std::string all;
    for (; count > 0; --count) all += text;
    return all;
  };
  const Lines built =
      BuildReport({"^self^", "^grow^", repeated(101, "^name^"), "^name^"}, SmallContent()).lines;
  EXPECT_EQ(built, (Lines{"^self^", repeated(100, "x") + "^grow^", repeated(100, "Bank") + "^name^",
                          "Bank"}))
      << "each line counts for itself";
}

TEST(TemplateEngine, AReportWithOneMarkerTakesTheOtherForATagAndItsMessageNamesIt) {
  ReportContent content = SmallContent();
  content.markers = {kRowMarker};
  EXPECT_EQ(BuildReport({"^datarow2^"}, content).unknownTags, Lines{"^datarow2^"});
  const Refusal message = UnknownTagMessage("^InstName^");
  EXPECT_EQ(message.text, "Unrecognized Tag String = ^InstName^ from Horizontal Template File");
  EXPECT_EQ(message.title, "Error!");
  EXPECT_EQ(message.icon, MessageIcon::None);
}

}  // namespace
}  // namespace corvane
