#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "account/Refusal.h"

namespace corvane {

/// What a tag is replaced by, and what is put at the end of the finished line that holds it.
struct TagValue {
  std::string text;
  std::string lineEnd;
};

/// Gives the value of a tag, both carets included ("^instname^"); nothing for a tag that the
/// report does not know. The comparison is exact, letter case included.
using TagResolver = std::function<std::optional<TagValue>(std::string_view tag)>;

/// Gives the rows that stand for a marker line, each a single line. `occurrence` counts the lines
/// of this build with that marker, from 1.
using RowWriter = std::function<std::vector<std::string>(std::string_view marker, int occurrence)>;

inline constexpr std::string_view kRowMarker = "^datarow^";
inline constexpr std::string_view kSecondRowMarker = "^datarow2^";

/// What one report puts into its template.
struct ReportContent {
  TagResolver resolveTag;
  RowWriter writeRows;
  std::vector<std::string_view> markers;
};

struct BuiltReport {
  std::vector<std::string> lines;        ///< the report, one entry per line
  std::string text;                      ///< the same lines joined without a terminator
  std::vector<std::string> unknownTags;  ///< in order of occurrence, repetitions included
};

/// A line takes at most this many replacements, so that a typed text which names its own tag
/// cannot keep a build busy for ever; what is left of the line is then literal.
inline constexpr int kMostReplacementsPerLine = 100;

/// Fills a template. A line that contains a marker is replaced by rows; the line after it is not
/// examined for a marker, and a marker on the last line ends the build. In every other line the
/// tags are replaced from left to right, an inserted value being searched again; an unknown tag
/// becomes "?", a caret without a partner stays as it is.
BuiltReport BuildReport(const std::vector<std::string>& templateLines,
                        const ReportContent& content);

/// The message for one occurrence of a tag that the report does not know.
Refusal UnknownTagMessage(std::string_view tag);

/// A resolver over a list of tags and their values.
TagResolver ResolveFrom(std::vector<std::pair<std::string, TagValue>> values);

}  // namespace corvane
