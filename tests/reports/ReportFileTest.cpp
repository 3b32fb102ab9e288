#include "reports/ReportFile.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#endif

#include "TemporaryFolder.h"
#include "reports/GoldenFile.h"
#include "reports/SaveName.h"

namespace corvane {
namespace {

void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream(PathOf(path), std::ios::binary) << bytes;
}

/// A folder with letters outside ASCII that holds a template and a report.
class ReportFile : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directory(PathOf(folder_));
    WriteBytes(template_, "one ^tag^\r\ntwo\n\nth\rree");
    WriteBytes(output_, "previous report");
  }

  ReportBuild Build(const std::string& templatePath, const std::string& outputPath) const {
    return BuildReportFile(templatePath, outputPath,
                           {ResolveFrom({{"^tag^", {value_, ""}}}), {}, {}});
  }

  std::size_t FileCount() const {
    const std::filesystem::directory_iterator files(PathOf(folder_));
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  /// A refused build names the path and a reason, and leaves everything as it was.
  void ExpectRefused(const ReportBuild& build, const std::string& path) {
    ASSERT_TRUE(build.error.has_value()) << path;
    EXPECT_EQ(build.error->path, path);
    EXPECT_TRUE(build.error->reason != "" && build.error->reason != "Success");
    EXPECT_EQ(build.text, "");
    EXPECT_EQ(BytesOf(output_), "previous report");
    EXPECT_EQ(FileCount(), 2u) << "no file is left beside";
  }

  const TemporaryFolder temporary_;
  const std::string folder_ = FileIn(Utf8Of(temporary_.Path()), "b\xC3\xBCro reports");
  const std::string template_ = FileIn(folder_, "template.txt");
  const std::string output_ = FileIn(folder_, "r\xC3\xA9sum\xC3\xA9.html");
  std::string value_ = "1";
};

TEST_F(ReportFile, EveryLineEndsInCrLfWhateverTheTemplateUses) {
  const ReportBuild build = Build(template_, output_);
  ASSERT_FALSE(build.error.has_value()) << build.error->reason;
  EXPECT_EQ(BytesOf(output_), "one 1\r\ntwo\r\n\r\nth\rree\r\n");
  EXPECT_EQ(build.text, "one 1twoth\rree");
  EXPECT_EQ(FileCount(), 2u);
}

TEST_F(ReportFile, AFileThatCannotBeReadOrWrittenLeavesThePreviousReport) {
  const std::string missing = FileIn(folder_, "missing.txt");
  ExpectRefused(Build(missing, output_), missing);
  ExpectRefused(Build(folder_, output_), folder_);
  const std::string nowhere = FileIn(FileIn(folder_, "nowhere"), "report.html");
  ExpectRefused(Build(template_, nowhere), nowhere);
  ExpectRefused(Build(template_, folder_), folder_);
}

#if __has_include(<sys/resource.h>)
TEST_F(ReportFile, AWriteThatBreaksOffLeavesThePreviousReport) {
  rlimit previous{};
  getrlimit(RLIMIT_FSIZE, &previous);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = previous;
  small.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &small);
  value_.assign(100000, 'x');
  const ReportBuild build = Build(template_, output_);
  setrlimit(RLIMIT_FSIZE, &previous);
  std::signal(SIGXFSZ, handler);
  ExpectRefused(build, output_);
}
#endif

TEST_F(ReportFile, TheMessageNamesThePathAndTheReason) {
  const Refusal message = MessageFor({"a/b", "Some reason"});
  EXPECT_EQ(message.text, "The report could not be written: a/b\nSome reason");
  EXPECT_EQ(message.title, "Error!");
}

TEST_F(ReportFile, OnlyTheNameOfTheChosenFileDecidesAboutTheSavedOne) {
  const std::pair<const char*, const char*> cases[] = {
      {"report", "report.html"},
      {"report.html.bak", "report.html.bak"},
      {"report.HTM", "report.html"},
      {"/home/my.htm/a.b.txt", "/home/my.htm/a.html"},
      {"/data/K\xC3\xB6ln.x", "/data/K\xC3\xB6ln.html"},
  };
  for (const auto& [chosen, saved] : cases) EXPECT_EQ(SavePathFor(chosen), saved) << chosen;
}

TEST_F(ReportFile, AsksOnlyBeforeReplacingAFileThatTheDialogDidNotShow) {
  EXPECT_FALSE(MustAskBeforeReplacing("chosen", FileIn(folder_, "missing")));
  EXPECT_TRUE(MustAskBeforeReplacing("chosen", output_));
  EXPECT_FALSE(MustAskBeforeReplacing(output_, output_)) << "the dialog has asked";
}

}  // namespace
}  // namespace corvane
