#include "reports/ReportFile.h"

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "reports/SaveName.h"
#include "support/Paths.h"
#include "support/WholeFile.h"

namespace corvane {
namespace {

class ReportFile : public testing::Test {
 protected:
  ReportFile() { WriteWholeFile(template_, "one ^tag^\r\ntwo ^x^\n\nth\rree ^x^\n^datarow^"); }

  const TemporaryFolder folder_;
  const std::filesystem::path template_ = folder_.Path() / "template.txt";
  const std::filesystem::path output_ = folder_.Path() / "report.html";
  const ReportContent content_ = {{{"^tag^", {"1"}}, {"^long^", {std::string(500, 'x')}}},
                                  {SameRows(kRowMarker, {"row"})}};
};

TEST_F(ReportFile, EveryLineEndsInCrLfAndEveryUnknownTagIsTold) {
  const WrittenReport report = WriteReport(template_, output_, content_);
  EXPECT_EQ(std::get<std::string>(ReadWholeFile(output_)),
            "one 1\r\ntwo ?\r\n\r\nth\rree ?\r\nrow\r\n");
  EXPECT_EQ(report.text, "one 1two ?th\rree ?row");
  ASSERT_EQ(report.messages.size(), 2u);
  for (const Refusal& message : report.messages) {
    EXPECT_EQ(message.text, "Unrecognized Tag String = ^x^ from Horizontal Template File");
    EXPECT_EQ(message.title, "Error!");
    EXPECT_EQ(message.icon, MessageIcon::None);
  }
}

TEST_F(ReportFile, TheLastMessageNamesThePathAndTheReasonOfAFailure) {
  WriteWholeFile(output_, "previous report");
  const auto missing = folder_.Path() / "missing.txt";
  const auto nowhere = folder_.Path() / "nowhere" / "report.html";
  const auto rowless = folder_.Path() / "rowless.txt";
  const auto binary = folder_.Path() / "binary.txt";
  const auto huge = folder_.Path() / "huge.txt";
  const auto greedy = folder_.Path() / "greedy.txt";
  WriteWholeFile(rowless, "^tag^");
  WriteWholeFile(huge, "^datarow^\n");
  std::string rows;
  for (int row = 0; row < 200'000; ++row) rows += "^datarow^\n^long^\n";
  WriteWholeFile(greedy, rows);
  std::filesystem::resize_file(huge, kLargestFile + 1);
  WriteWholeFile(binary, std::string("^datarow^\0", 10));
  const struct {
    std::filesystem::path source, target, named;
    std::string reason;
  } cases[] = {
      {missing, output_, missing, "No such file or directory"},
      {template_, nowhere, nowhere, "No such file or directory"},
      {folder_.Path(), output_, folder_.Path(), "Is a directory"},
      {rowless, output_, rowless, "The template holds no data row"},
      {binary, output_, binary, "The template is no text file"},
      {huge, output_, huge, "The file is larger than 4 MiB"},
      {greedy, output_, greedy, "The report would be larger than 64 MiB"},
      {template_, "report.html", "report.html", "There is no documents folder"},
  };
  for (const auto& [source, target, named, reason] : cases) {
    const WrittenReport report = WriteReport(source, target, content_);
    EXPECT_FALSE(report.text.has_value()) << named;
    EXPECT_EQ(report.messages.back().text,
              "The report could not be written: " + PathText(named) + "\n" + reason);
    EXPECT_EQ(report.messages.back().title, "Error!");
  }
  EXPECT_EQ(std::get<std::string>(ReadWholeFile(output_)), "previous report");
  WriteWholeFile(template_, "^datarow^\n^a^^b^^c^^d^^e^");
  const WrittenReport report = WriteReport(template_, output_, content_);
  ASSERT_EQ(report.messages.size(), 4u);
  EXPECT_EQ(report.messages.back().text,
            "Further Unrecognized Tag Strings from Horizontal Template File: 2");
}

TEST_F(ReportFile, OnlyTheNameOfTheChosenFileDecidesAboutTheSavedOne) {
  const std::pair<const char*, const char*> cases[] = {
      {"report", "report.html"},
      {"report.html.bak", "report.html.bak"},
      {"report.HTM", "report.html"},
      {"/home/my.htm/a.b.txt", "/home/my.htm/a.html"},
      {"/data/K\xC3\xB6ln.x", "/data/K\xC3\xB6ln.html"},
  };
  for (const auto& [chosen, saved] : cases) {
    EXPECT_EQ(PathText(SavePathFor(PathOf(chosen))), saved) << chosen;
  }
}

TEST_F(ReportFile, AsksOnlyBeforeReplacingAFileThatTheDialogDidNotShow) {
  EXPECT_FALSE(MustAskBeforeReplacing("chosen", output_));
  EXPECT_TRUE(MustAskBeforeReplacing("chosen", template_));
  EXPECT_FALSE(MustAskBeforeReplacing(template_, template_)) << "the dialog has asked";
}

}  // namespace
}  // namespace corvane
