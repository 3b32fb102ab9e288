#include "reports/GoldenFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "TemporaryFolder.h"

namespace corvane {

namespace {

void ExpectFilled(const std::string& templatePath, std::string_view expectedName,
                  const ReportContent& content) {
  TemporaryFolder folder;
  const std::string outputPath = FileIn(Utf8Of(folder.Path()), expectedName);
  const ReportBuild build = BuildReportFile(templatePath, outputPath, content);
  ASSERT_FALSE(build.error.has_value()) << MessageFor(*build.error).text;
  EXPECT_TRUE(build.unknownTags.empty()) << build.unknownTags.front();
  const std::string expected = BytesOf(FileIn(CORVANE_GOLDEN_FOLDER, expectedName));
  ASSERT_FALSE(expected.empty()) << "no expected report " << expectedName;
  const std::string computed = BytesOf(outputPath);
  EXPECT_EQ(computed, expected) << "computed: " << outputPath;
  if (computed != expected) folder.Keep();
}

}  // namespace

std::string BytesOf(const std::string& path) {
  std::ifstream in(PathOf(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void ExpectReport(std::string_view templateName, std::string_view expectedName,
                  const ReportContent& content) {
  ExpectFilled(FileIn(CORVANE_GOLDEN_FOLDER, templateName), expectedName, content);
}

void ExpectShippedReport(const ReportNames& report, std::string_view expectedName,
                         const ReportContent& content) {
  ExpectFilled(FileIn(CORVANE_TEMPLATE_FOLDER, report.templateName), expectedName, content);
}

}  // namespace corvane
