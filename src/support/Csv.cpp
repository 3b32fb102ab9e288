#include "support/Csv.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace corvane {

namespace {

constexpr std::size_t kBlock = 4 * kLongestRecord;
constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr char kSeparators[] = {',', ';', '\t'};

/// How many bytes follow the first one of a UTF-8 character, or nothing where none begins so.
std::optional<int> FollowersOf(unsigned char first) {
  if (first < 0x80) return 0;
  if (first >= 0xC2 && first <= 0xDF) return 1;
  if (first >= 0xE0 && first <= 0xEF) return 2;
  if (first >= 0xF0 && first <= 0xF4) return 3;
  return std::nullopt;
}

/// Characters that could be written shorter, surrogates, and numbers beyond the last character.
bool IsForbidden(unsigned char first, unsigned char second) {
  return (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
         (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const auto first = static_cast<unsigned char>(text[at++]);
    const auto followers = FollowersOf(first);
    if (!followers || text.size() - at < static_cast<std::size_t>(*followers)) return false;
    if (*followers > 0 && IsForbidden(first, static_cast<unsigned char>(text[at]))) return false;
    for (int k = 0; k < *followers; ++k, ++at) {
      if ((static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return false;
    }
  }
  return true;
}

/// Whether a text holds bytes of the upper half, eight at a time.
bool IsAscii(std::string_view text) {
  constexpr std::uint64_t kUpperHalves = 0x8080808080808080;
  std::uint64_t seen = 0;
  const char* at = text.data();
  std::size_t left = text.size();
  for (; left >= sizeof seen; left -= sizeof seen, at += sizeof seen) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, at, sizeof eight);
    seen |= eight;
  }
  for (; left > 0; --left) seen |= static_cast<unsigned char>(*at++);
  return (seen & kUpperHalves) == 0;
}

CsvDamage DamageOf(std::string_view text) {
  if (std::memchr(text.data(), '\0', text.size())) return CsvDamage::NulCharacter;
  return IsAscii(text) || IsUtf8(text) ? CsvDamage::None : CsvDamage::NotUtf8;
}

}  // namespace

const char* DamageText(CsvDamage damage) {
  switch (damage) {
    case CsvDamage::None:
      return "";
    case CsvDamage::OpenQuote:
      return "A quote is opened here and not closed.";
    case CsvDamage::TextBehindQuote:
      return "A quote is opened here, and behind the one that closes it the cell goes on.";
    case CsvDamage::TooLong:
      return "The row is longer than 65,536 bytes.";
    case CsvDamage::NulCharacter:
      return "The row holds a NUL character.";
    case CsvDamage::NotUtf8:
      return "The row is not UTF-8 text.";
  }
  return "";
}

CsvReader::CsvReader(Source source, CsvFormat format)
    : source_(std::move(source)), keepsEmptyLines_(format.keepsEmptyLines) {
  buffer_.resize(kBlock);
  while (end_ < kLongestRecord && ReadMore()) {
  }
  SkipMark();
  if (format.separator) {
    separator_ = *format.separator;
  } else {
    TellSeparator();
  }
  next_ = begin_;
}

bool CsvReader::ReadMore() {
  if (atEnd_) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  const std::size_t count = source_({buffer_.data() + end_, buffer_.size() - end_});
  end_ += count;
  bytesRead_ += count;
  atEnd_ = count == 0;
  return !atEnd_;
}

void CsvReader::SkipMark() {
  const std::string_view text(buffer_.data(), end_);
  if (text.starts_with(kMark)) begin_ = kMark.size();
  const bool otherMark = text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
  if (otherMark) refusal_ = "The file is UTF-16. Please save it as UTF-8.";
}

void CsvReader::TellSeparator() {
  std::array<int, std::size(kSeparators)> counts{};
  bool quoted = false, found = false;
  for (std::size_t at = begin_; at < end_ && (quoted || !found || buffer_[at] != '\n'); ++at) {
    if (buffer_[at] == '"') quoted = !quoted;
    const auto* separator = std::ranges::find(kSeparators, buffer_[at]);
    if (quoted || separator == std::end(kSeparators)) continue;
    ++counts[std::size_t(separator - kSeparators)];
    found = true;
  }
  const auto most = std::ranges::max_element(counts) - counts.begin();
  separator_ = kSeparators[most];
}

const CsvRecord* CsvReader::Next() {
  for (;;) {
    begin_ = next_;
    if (begin_ == end_ && !ReadMore()) return nullptr;
    while (Split() == Found::NeedsMore) {
      if (end_ - begin_ > kLongestRecord) {
        SkipLongLine();
        return &record_;
      }
      ReadMore();
    }
    if (keepsEmptyLines_ || !record_.text.empty() || record_.damage != CsvDamage::None)
      return &record_;
  }
}

CsvReader::Found CsvReader::Split() {
  record_.line = line_;
  record_.damage = CsvDamage::None;
  record_.cells.clear();
  if (SplitCells() == Found::NeedsMore) return Found::NeedsMore;
  if (record_.damage == CsvDamage::None) record_.damage = DamageOf(record_.text);
  return Found::Record;
}

CsvReader::Found CsvReader::SplitCells() {
  const char* const text = buffer_.data();
  std::size_t cell = begin_;
  for (std::size_t at = begin_;; ++at) {
    if (at < end_ && text[at] == '"' && at == cell) {
      const auto behind = BehindQuotedCell(at);
      if (!behind && (atEnd_ || end_ - cell > kLongestRecord)) {
        return CutBehind(cell, CsvDamage::OpenQuote);
      }
      if (!behind) return Found::NeedsMore;
      at = *behind;
      const bool ends = at == end_ || text[at] == separator_ || text[at] == '\n' ||
                        (text[at] == '\r' && (at + 1 == end_ || text[at + 1] == '\n'));
      if (!ends) return CutBehind(cell, CsvDamage::TextBehindQuote);
    }
    while (at < end_ && text[at] != separator_ && text[at] != '\n') ++at;
    if (at == end_ && !atEnd_) return Found::NeedsMore;
    const bool endsLine = at == end_ || text[at] == '\n';
    const bool hasReturn = endsLine && at > cell && text[at - 1] == '\r';
    record_.cells.emplace_back(text + cell, at - cell - (hasReturn ? 1 : 0));
    cell = at + 1;
    if (!endsLine) continue;
    if (at - begin_ > kLongestRecord) return CutBehind(begin_, CsvDamage::TooLong);
    Finish(at, std::min(at + 1, end_));
    return Found::Record;
  }
}

/// Where a cell in quotes ends; nothing where the buffer or the longest record ends first.
std::optional<std::size_t> CsvReader::BehindQuotedCell(std::size_t quote) const {
  const char* const text = buffer_.data();
  const std::size_t limit = std::min(end_, quote + kLongestRecord);
  for (std::size_t at = quote + 1; at < limit; ++at) {
    const void* found = std::memchr(text + at, '"', limit - at);
    if (!found) return std::nullopt;
    at = static_cast<std::size_t>(static_cast<const char*>(found) - text) + 1;
    if (at == end_ && !atEnd_) return std::nullopt;
    if (at == end_ || text[at] != '"') return at;
  }
  return std::nullopt;
}

/// The record ends with the line in which its damage begins: what follows may be sound.
CsvReader::Found CsvReader::CutBehind(std::size_t place, CsvDamage damage) {
  const void* found = std::memchr(buffer_.data() + place, '\n', end_ - place);
  if (!found && !atEnd_) return Found::NeedsMore;
  const std::size_t end =
      found ? static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data()) : end_;
  Finish(end, std::min(end + 1, end_));
  record_.damage = end - begin_ > kLongestRecord ? CsvDamage::TooLong : damage;
  if (record_.damage == CsvDamage::TooLong) record_.text = {};
  return Found::Record;
}

void CsvReader::Finish(std::size_t end, std::size_t next) {
  record_.text = {buffer_.data() + begin_, end - begin_};
  record_.end = end == end_ ? LineEnd::None : LineEnd::Lf;
  if (record_.text.ends_with('\r')) {
    record_.text.remove_suffix(1);
    if (record_.end == LineEnd::Lf) record_.end = LineEnd::CrLf;
  }
  line_ +=
      static_cast<std::size_t>(std::count(buffer_.data() + begin_, buffer_.data() + next, '\n'));
  next_ = next;
}

/// Leaves out a line that is longer than the buffer has to hold.
void CsvReader::SkipLongLine() {
  record_ = {.line = line_, .text = {}, .cells = {}, .damage = CsvDamage::TooLong};
  do {
    const void* found = std::memchr(buffer_.data() + begin_, '\n', end_ - begin_);
    if (found) {
      next_ = static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data()) + 1;
      record_.end = LineEnd::Lf;
      ++line_;
      return;
    }
    begin_ = end_;
  } while (ReadMore());
  next_ = begin_ = end_;
}

std::string_view CsvText(std::string_view cell, std::string& buffer) {
  if (cell.empty() || cell.front() != '"') return cell;
  cell = cell.substr(1, cell.size() - 2);
  if (cell.find('"') == std::string_view::npos) return cell;
  buffer.clear();
  for (std::size_t at = 0; at < cell.size(); ++at) {
    buffer += cell[at];
    if (cell[at] == '"') ++at;
  }
  return buffer;
}

void AppendCsvCell(std::string& line, std::string_view text, char separator) {
  const auto isSpecial = [separator](char c) {
    return c == separator || c == '"' || c == '\r' || c == '\n';
  };
  if (std::ranges::none_of(text, isSpecial)) {
    line += text;
    return;
  }
  line += '"';
  for (const char c : text) {
    if (c == '"') line += '"';
    line += c;
  }
  line += '"';
}

CsvReader::Source CsvSourceOf(std::string_view text) {
  return [text](std::span<char> block) mutable {
    const std::size_t count = std::min(block.size(), text.size());
    std::copy_n(text.begin(), count, block.begin());
    text.remove_prefix(count);
    return count;
  };
}

std::vector<CsvRow> CsvRowsOf(std::string_view text) {
  std::vector<CsvRow> rows;
  CsvReader reader(CsvSourceOf(text));
  while (const CsvRecord* record = reader.Next()) {
    CsvRow& row = rows.emplace_back();
    row.line = record->line;
    row.damage = record->damage;
    std::string buffer;
    for (const std::string_view cell : record->cells) row.cells.emplace_back(CsvText(cell, buffer));
  }
  return rows;
}

}  // namespace corvane
