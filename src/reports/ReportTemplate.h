#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// What a tag is replaced by, and what is put at the end of the finished line that holds it.
struct TagValue {
  std::string text;
  std::string lineEnd = {};
};

/// The tags that a report knows, both carets included ("^instname^"). They are compared exactly,
/// letter case included.
using Tags = std::map<std::string, TagValue, std::less<>>;

/// Rows of a table, each a single line.
using Rows = std::vector<std::string>;

inline constexpr std::string_view kRowMarker = "^datarow^";
inline constexpr std::string_view kSecondRowMarker = "^datarow2^";

/// The rows that stand for a line with this marker. `occurrence` counts the lines of a template
/// with that marker, from 1.
struct MarkedRows {
  std::string_view marker;
  std::function<Rows(int occurrence)> rows;
};

/// The same rows for every line with the marker.
MarkedRows SameRows(std::string_view marker, Rows rows);

/// What one report puts into its template. It holds everything by value.
struct ReportContent {
  Tags tags;
  std::vector<MarkedRows> rows;
};

struct FilledTemplate {
  std::vector<std::string> lines;        ///< the report, one entry per line
  std::vector<std::string> unknownTags;  ///< in order of occurrence, repetitions included
  bool isTooLarge = false;               ///< the report ends where it reached kLargestReport
};

/// Bytes, far more than any report has for a reason: a template of a million markers is refused
/// before its rows fill the memory.
inline constexpr std::size_t kLargestReport = std::size_t{64} << 20;

/// A line takes at most this many replacements, so that a typed text which names its own tag
/// cannot keep a report busy for ever; what is left of the line is then literal.
inline constexpr int kMostReplacementsPerLine = 100;

/// Fills a template. A line that contains a marker is replaced by rows; the line after it is not
/// examined for a marker, and a marker on the last line ends the report. In every other line the
/// tags are replaced from left to right, an inserted value being searched again; an unknown tag
/// becomes "?", a caret without a partner stays as it is.
FilledTemplate FillTemplate(const std::vector<std::string>& templateLines,
                            const ReportContent& content);

}  // namespace corvane
