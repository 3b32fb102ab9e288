#include "Fuzz.h"
#include "reports/ReportTemplate.h"
#include "support/WholeFile.h"

using namespace corvane;

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  // A typed text may name tags itself, its own too.
  const std::string typed = input.ConsumeRandomLengthString(64);
  const std::vector<std::string> lines = LinesOf(input.ConsumeRemainingBytesAsString());
  ReportContent content;
  content.tags = {{"^name^", {typed}}, {"^b^", {"<b>", "</b>"}}, {"^^", {"x"}}};
  content.rows = {SameRows(kRowMarker, {"one", "two"}), SameRows(kSecondRowMarker, {})};
  const FilledTemplate filled = FillTemplate(lines, content);
  DEMAND(filled.lines.size() <= 2 * lines.size());
  std::size_t length = 0;
  for (const std::string& line : lines) length += line.size();
  DEMAND(filled.unknownTags.size() <= length + lines.size() * kMostReplacementsPerLine);
  return 0;
}
