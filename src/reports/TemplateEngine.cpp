#include "reports/TemplateEngine.h"

#include <algorithm>

namespace corvane {

namespace {

class Build {
 public:
  explicit Build(const ReportContent& content)
      : content_(content), occurrences_(content.markers.size(), 0) {}

  BuiltReport Run(const std::vector<std::string>& templateLines) {
    for (auto line = templateLines.begin(); line != templateLines.end(); ++line) {
      if (WriteRowsFor(*line) && ++line == templateLines.end()) break;
      Write(FilledLine(*line));
    }
    return std::move(report_);
  }

 private:
  void Write(std::string line) {
    report_.text += line;
    report_.lines.push_back(std::move(line));
  }

  /// Writes the rows when the line holds a marker; false when it holds none.
  bool WriteRowsFor(const std::string& line) {
    for (std::size_t i = 0; i < content_.markers.size(); ++i) {
      if (line.find(content_.markers[i]) == std::string::npos) continue;
      for (std::string& row : content_.writeRows(content_.markers[i], ++occurrences_[i])) {
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
      const TagValue value = ValueOf(line.substr(first, length));
      line.replace(first, length, value.text);
      lineEnd += value.lineEnd;
      first = line.find('^', first);
    }
    return line + lineEnd;
  }

  TagValue ValueOf(const std::string& tag) {
    if (auto value = content_.resolveTag(tag)) return *std::move(value);
    report_.unknownTags.push_back(tag);
    return {"?", ""};
  }

  const ReportContent& content_;
  std::vector<int> occurrences_;
  BuiltReport report_;
};

}  // namespace

BuiltReport BuildReport(const std::vector<std::string>& templateLines,
                        const ReportContent& content) {
  return Build(content).Run(templateLines);
}

Refusal UnknownTagMessage(std::string_view tag) {
  return {"Unrecognized Tag String = " + std::string(tag) + " from Horizontal Template File", "",
          "Error!", MessageIcon::None};
}

TagResolver ResolveFrom(std::vector<std::pair<std::string, TagValue>> values) {
  return [values = std::move(values)](std::string_view tag) -> std::optional<TagValue> {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [tag](const auto& entry) { return entry.first == tag; });
    if (found == values.end()) return std::nullopt;
    return found->second;
  };
}

}  // namespace corvane
