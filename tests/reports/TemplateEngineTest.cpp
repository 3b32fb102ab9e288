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

struct Case {
  const char* about;
  Lines input;
  Lines expected;
  Lines unknown;
};

const Case kCases[] = {
    {"text without tags is copied", {"one", "", " two "}, {"one", "", " two "}, {}},
    {"tags fill from left to right", {"a^name^b^blank^c^name^"}, {"aBankbcBank"}, {}},
    {"an unknown tag, once per occurrence",
     {"^Name^ ^name^ ^x^", "^Name^"},
     {"? Bank ?", "?"},
     {"^Name^", "^x^", "^Name^"}},
    {"a value is searched again", {"^nested^"}, {"<Bank>"}, {}},
    {"a typed caret starts a tag", {"^caret^ ^name^"}, {"A?name^"}, {"^B ^"}},
    {"a typed caret without partner stays", {"^caret^"}, {"A^B"}, {}},
    {"a caret without partner stays", {"5^", "^name^ 2^3"}, {"5^", "Bank 2^3"}, {}},
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
    {"tags in the line after a marker are filled",
     {"^datarow^", "^name^"},
     {"row 1a", "row b", "Bank"},
     {}},
    {"rows are never searched, markers count apart",
     {"^datarow2^", "-", "^datarow^", "-"},
     {"second ^name^", "-", "row 1a", "row b", "-"},
     {}},
    {"no lines", {}, {}, {}},
};

TEST(TemplateEngine, FillsTemplates) {
  for (const Case& c : kCases) {
    const BuiltReport report = BuildReport(c.input, SmallContent());
    EXPECT_EQ(report.lines, c.expected) << c.about;
    EXPECT_EQ(report.unknownTags, c.unknown) << c.about;
    std::string joined;
    for (const std::string& line : c.expected) joined += line;
    EXPECT_EQ(report.text, joined) << c.about;
  }
}

TEST(TemplateEngine, TheHundredAndFirstReplacementOfALineIsLiteral) {
  EXPECT_EQ(BuildReport({"^self^"}, SmallContent()).lines, Lines{"^self^"});
  EXPECT_EQ(BuildReport({"^grow^"}, SmallContent()).lines, Lines{std::string(100, 'x') + "^grow^"});
  std::string many;
  for (int i = 0; i < 101; ++i) many += "^name^";
  std::string banks;
  for (int i = 0; i < 100; ++i) banks += "Bank";
  EXPECT_EQ(BuildReport({many, "^name^"}, SmallContent()).lines, (Lines{banks + "^name^", "Bank"}))
      << "each line counts for itself";
}

TEST(TemplateEngine, AReportWithOneMarkerTakesTheOtherForATag) {
  ReportContent content = SmallContent();
  content.markers = {kRowMarker};
  EXPECT_EQ(BuildReport({"^datarow2^"}, content).unknownTags, Lines{"^datarow2^"});
}

TEST(TemplateEngine, TheMessageNamesTheTag) {
  const Refusal message = UnknownTagMessage("^InstName^");
  EXPECT_EQ(message.text, "Unrecognized Tag String = ^InstName^ from Horizontal Template File");
  EXPECT_EQ(message.title, "Error!");
  EXPECT_EQ(message.icon, MessageIcon::None);
}

}  // namespace
}  // namespace corvane
