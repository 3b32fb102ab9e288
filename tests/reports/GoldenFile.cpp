#include "reports/GoldenFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "reports/ReportFile.h"

namespace corvane {

namespace {

/// "line 3: expected ..., computed ..." of the first line in which two reports differ.
std::string FirstDifference(const std::string& expected, const std::string& computed) {
  std::istringstream wanted(expected);
  std::istringstream got(computed);
  for (int number = 1; wanted || got; ++number) {
    std::string wantedLine;
    std::string gotLine;
    std::getline(wanted, wantedLine);
    std::getline(got, gotLine);
    if (wantedLine == gotLine) continue;
    return "line " + std::to_string(number) + "\n  expected " + wantedLine + "\n  computed " +
           gotLine;
  }
  return "only the ends of lines differ";
}

}  // namespace

std::string BytesOf(const std::string& path) {
  std::ifstream in(PathOf(path), std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

void ExpectReport(const std::string& templatePath, const std::string& expectedName,
                  const ReportContent& content) {
  const std::string outputPath = FileIn(testing::TempDir(), expectedName);
  const ReportBuild build = BuildReportFile(templatePath, outputPath, content);
  ASSERT_FALSE(build.error.has_value()) << MessageFor(*build.error).text;
  EXPECT_TRUE(build.unknownTags.empty()) << build.unknownTags.front();
  const std::string expected = BytesOf(FileIn(CORVANE_GOLDEN_FOLDER, expectedName));
  const std::string computed = BytesOf(outputPath);
  EXPECT_FALSE(expected.empty()) << "no expected report " << expectedName;
  EXPECT_TRUE(expected == computed) << expectedName << " (computed: " << outputPath << ")\n"
                                    << FirstDifference(expected, computed);
}

std::string ShippedTemplate(std::string_view name) {
  return FileIn(CORVANE_TEMPLATE_FOLDER, name);
}

std::string SmallTemplate(std::string_view name) {
  return FileIn(CORVANE_GOLDEN_FOLDER, name);
}

}  // namespace corvane
