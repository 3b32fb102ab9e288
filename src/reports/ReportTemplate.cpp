#include "reports/ReportTemplate.h"

#include <utility>

namespace corvane {

namespace {

/// Fills one template.
class Filling {
 public:
  explicit Filling(const ReportContent& content)
      : content_(content), occurrences_(content.rows.size(), 0) {}

  FilledTemplate Of(const std::vector<std::string>& templateLines) {
    for (auto line = templateLines.begin(); line != templateLines.end(); ++line) {
      if (WriteRowsFor(*line) && ++line == templateLines.end()) break;
      Write(FilledLine(*line));
      if (report_.isTooLarge) break;
    }
    return std::move(report_);
  }

 private:
  void Write(std::string line) {
    size_ += line.size();
    report_.isTooLarge = size_ > kLargestReport;
    report_.lines.push_back(std::move(line));
  }

  /// Writes the rows when the line holds a marker; false when it holds none.
  bool WriteRowsFor(const std::string& line) {
    for (std::size_t i = 0; i < content_.rows.size(); ++i) {
      if (line.find(content_.rows[i].marker) == std::string::npos) continue;
      for (std::string& row : content_.rows[i].rows(++occurrences_[i])) {
        Write(std::move(row));
      }
      return true;
    }
    return false;
  }

  std::string FilledLine(std::string line) {
    std::string lineEnd;
    std::size_t first = line.find('^');
    for (int count = 0; count < kMostReplacementsPerLine; ++count) {
      if (first == std::string::npos) break;
      const std::size_t second = line.find('^', first + 1);
      if (second == std::string::npos) break;
      const std::size_t length = second - first + 1;
      const TagValue& value = ValueOf(line.substr(first, length));
      line.replace(first, length, value.text);
      lineEnd += value.lineEnd;
      first = line.find('^', first);
    }
    return line + lineEnd;
  }

  const TagValue& ValueOf(const std::string& tag) {
    static const TagValue unknown = {"?"};
    const auto known = content_.tags.find(tag);
    if (known != content_.tags.end()) return known->second;
    report_.unknownTags.push_back(tag);
    return unknown;
  }

  const ReportContent& content_;
  std::vector<int> occurrences_;
  FilledTemplate report_;
  std::size_t size_ = 0;
};

}  // namespace

MarkedRows SameRows(std::string_view marker, Rows rows) {
  return {marker, [rows = std::move(rows)](int) { return rows; }};
}

FilledTemplate FillTemplate(const std::vector<std::string>& templateLines,
                            const ReportContent& content) {
  return Filling(content).Of(templateLines);
}

}  // namespace corvane
