#include "reports/SaveName.h"

#include <gtest/gtest.h>

#include <fstream>

#include "reports/ReportFile.h"

namespace corvane {
namespace {

TEST(SaveName, OnlyTheFilesNameDecidesAndChanges) {
  const struct {
    const char* chosen;
    const char* saved;
  } cases[] = {
      {"report", "report.html"},
      {"report.htm", "report.htm"},
      {"report.html", "report.html"},
      {"my.report.htm", "my.report.htm"},
      {"report.html.bak", "report.html.bak"},
      {"report.HTM", "report.html"},
      {"a.b.txt", "a.html"},
      {"report.", "report.html"},
      {"/home/j.doe/report", "/home/j.doe/report.html"},
      {"/home/my.htm/a.b.txt", "/home/my.htm/a.html"},
      {"/home/my.htm/report", "/home/my.htm/report.html"},
      {"/data/K\xC3\xB6ln.x", "/data/K\xC3\xB6ln.html"},
      {"/report.txt", "/report.html"},
  };
  for (const auto& c : cases) EXPECT_EQ(SavePathFor(c.chosen), c.saved) << c.chosen;
}

TEST(SaveName, AsksOnlyBeforeReplacingAFileThatTheDialogDidNotShow) {
  const std::string folder = testing::TempDir();
  const std::string chosen = FileIn(folder, "asked.txt");
  const std::string saved = SavePathFor(chosen);
  std::filesystem::remove(PathOf(saved));
  EXPECT_FALSE(MustAskBeforeReplacing(chosen, saved)) << "no such file yet";
  std::ofstream(PathOf(saved)) << "earlier";
  EXPECT_TRUE(MustAskBeforeReplacing(chosen, saved));
  EXPECT_FALSE(MustAskBeforeReplacing(saved, saved)) << "the dialog has asked";
}

TEST(SaveName, TheSavedPageIsOneLine) {
  EXPECT_EQ(SavedText("<html></html>"), "<html></html>\r\n");
}

}  // namespace
}  // namespace corvane
