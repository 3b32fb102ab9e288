#include "support/IniFile.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <vector>

#include "support/NumberText.h"
#include "support/WholeFile.h"

namespace corvane {

namespace {

constexpr std::size_t kLongestValue = 254;

/// Some editors put it before the first line.
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

using Lines = std::vector<std::string>;

/// The file's lines without their ends, none where there is no file; nothing when it cannot be
/// read.
std::optional<Lines> ReadLines(const std::filesystem::path& file) {
  const auto content = ReadWholeFile(file);
  if (const auto* text = std::get_if<std::string>(&content)) return LinesOf(*text);
  std::error_code ignored;
  if (std::filesystem::exists(file, ignored)) return std::nullopt;
  return Lines{};
}

bool SameName(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
  });
}

std::optional<std::string_view> SectionName(std::string_view line) {
  if (line.starts_with(kUtf8Mark)) line.remove_prefix(kUtf8Mark.size());
  line = Trim(line);
  const auto close = line.find(']');
  if (line.empty() || line.front() != '[' || close == std::string_view::npos) return std::nullopt;
  return Trim(line.substr(1, close - 1));
}

bool IsKeyLine(std::string_view line, std::string_view key) {
  const auto equals = line.find('=');
  return equals != std::string_view::npos && SameName(Trim(line.substr(0, equals)), key);
}

/// The lines that belong to a section, as positions from its first line to behind its last.
struct SectionLines {
  std::size_t first = 0;
  std::size_t end = 0;
};

std::optional<SectionLines> FindSection(const Lines& lines, const std::string& section) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto name = SectionName(lines[i]);
    if (!name || !SameName(*name, section)) continue;
    std::size_t end = i + 1;
    while (end < lines.size() && !SectionName(lines[end])) ++end;
    return SectionLines{i + 1, end};
  }
  return std::nullopt;
}

std::optional<std::size_t> FindKey(const Lines& lines, const SectionLines& section,
                                   const std::string& key) {
  for (std::size_t i = section.first; i < section.end; ++i) {
    if (IsKeyLine(lines[i], key)) return i;
  }
  return std::nullopt;
}

std::string ValueOf(std::string_view line) {
  std::string_view value = Trim(line.substr(line.find('=') + 1));
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  if (quoted) value = value.substr(1, value.size() - 2);
  return std::string(value.substr(0, kLongestValue));
}

/// A new key goes behind the section's last line that is not empty.
std::size_t PlaceForKey(const Lines& lines, const SectionLines& section) {
  std::size_t place = section.end;
  while (place > section.first && Trim(lines[place - 1]).empty()) --place;
  return place;
}

void SetKey(Lines& lines, const std::string& section, const std::string& key,
            const std::string& value) {
  const std::string line = key + "=" + value;
  const auto found = FindSection(lines, section);
  if (!found) {
    lines.push_back("[" + section + "]");
    lines.push_back(line);
    return;
  }
  if (const auto place = FindKey(lines, *found, key)) {
    lines[*place] = line;
    return;
  }
  const auto place = static_cast<Lines::difference_type>(PlaceForKey(lines, *found));
  lines.insert(lines.begin() + place, line);
}

}  // namespace

std::string ReadIniValue(const std::string& section, const std::string& key,
                         const std::string& defaultValue, const std::filesystem::path& file) {
  const Lines lines = ReadLines(file).value_or(Lines{});
  const auto found = FindSection(lines, section);
  const auto place = found ? FindKey(lines, *found, key) : std::nullopt;
  const std::string value = place ? ValueOf(lines[*place]) : "";
  return value.empty() ? defaultValue : value;
}

bool WriteIniValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::filesystem::path& file) {
  auto lines = ReadLines(file);
  if (!lines) return false;
  SetKey(*lines, section, key, value);
  return !WriteWholeFile(file, TextOf(*lines));
}

}  // namespace corvane
