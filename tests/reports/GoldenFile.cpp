#include "reports/GoldenFile.h"

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "support/WholeFile.h"

namespace corvane {

namespace {

const std::filesystem::path kGolden = CORVANE_TESTS "reports/golden";
const std::filesystem::path kShipped = CORVANE_TEMPLATE_FOLDER;

void ExpectFilled(const std::filesystem::path& templateFile, std::string_view expectedName,
                  const ReportContent& content) {
  TemporaryFolder folder;
  const auto output = folder.Path() / expectedName;
  const WrittenReport report = WriteReport(templateFile, output, content);
  ASSERT_TRUE(report.messages.empty()) << report.messages.front().text;
  const auto expected = std::get<std::string>(ReadWholeFile(kGolden / expectedName));
  const auto computed = std::get<std::string>(ReadWholeFile(output));
  EXPECT_EQ(computed, expected) << "computed: " << output;
  if (computed != expected) folder.Keep();
}

}  // namespace

void ExpectReport(std::string_view templateName, std::string_view expectedName,
                  const ReportContent& content) {
  ExpectFilled(kGolden / templateName, expectedName, content);
}

void ExpectShippedReport(const ReportNames& report, std::string_view expectedName,
                         const ReportContent& content) {
  ExpectFilled(kShipped / report.templateName, expectedName, content);
}

}  // namespace corvane
