#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

// Comma-separated values by RFC 4180: a cell in quotes may hold separators, line breaks and,
// doubled, quotes. Text is UTF-8, with or without its mark; lines end in LF or CR LF.

/// The most bytes of one record. A quote that is never closed costs no more than its own line.
inline constexpr std::size_t kLongestRecord = 65536;

/// What is wrong with a record. The records behind it are read all the same.
enum class CsvDamage { None, OpenQuote, TextBehindQuote, TooLong, NulCharacter, NotUtf8 };

/// What a message says of it; empty for none.
const char* DamageText(CsvDamage damage);

enum class LineEnd { None, Lf, CrLf };

/// A record as it stands in its file.
struct CsvRecord {
  std::size_t line = 0;   ///< where it begins, the first line being 1
  std::string_view text;  ///< without its line end; empty when it is too long
  std::vector<std::string_view>
      cells;  ///< quotes included: see CsvText; of a damaged record those that could be read
  CsvDamage damage = CsvDamage::None;
  LineEnd end = LineEnd::None;
};

/// How a text is read that may be other than a whole file of records.
struct CsvFormat {
  std::optional<char> separator;  ///< nothing: the one that stands most often in the first line
                                  ///< that has any: comma, semicolon or tab
  bool keepsEmptyLines = false;   ///< each is a record of one empty cell, else it is left out
};

/// Reads record after record. Memory does not grow with the file.
class CsvReader {
 public:
  /// Puts the next bytes into the block and returns how many, 0 behind the last.
  using Source = std::function<std::size_t(std::span<char>)>;

  /// Reads the beginning; the mark is left out.
  explicit CsvReader(Source source, CsvFormat format = {});

  /// The next record, valid until the next call; nothing behind the last.
  const CsvRecord* Next();

  char Separator() const { return separator_; }
  /// Why the file cannot be text of this kind at all: it begins as UTF-16 does. Empty else.
  const char* Refusal() const { return refusal_; }
  /// Bytes taken from the source so far, for a progress.
  std::size_t BytesRead() const { return bytesRead_; }

 private:
  enum class Found { Record, NeedsMore };

  bool ReadMore();
  void SkipMark();
  void TellSeparator();
  Found Split();
  Found SplitCells();
  Found CutBehind(std::size_t place, CsvDamage damage);
  std::optional<std::size_t> BehindQuotedCell(std::size_t quote) const;
  void Finish(std::size_t end, std::size_t next);
  void SkipLongLine();

  Source source_;
  bool keepsEmptyLines_;
  std::string buffer_;
  std::size_t begin_ = 0;  ///< of what is not read yet, in the buffer
  std::size_t end_ = 0;    ///< of what the buffer holds
  std::size_t next_ = 0;   ///< where the record behind the current one begins
  std::size_t line_ = 1;
  std::size_t bytesRead_ = 0;
  bool atEnd_ = false;
  char separator_ = ',';
  const char* refusal_ = "";
  CsvRecord record_;
};

/// The text of a cell, without its quotes. The buffer holds it where quotes had to be taken out.
std::string_view CsvText(std::string_view cell, std::string& buffer);

/// Appends a cell, in quotes where it has to be.
void AppendCsvCell(std::string& line, std::string_view text, char separator);

/// A source of bytes that stand in memory; they have to outlive it.
CsvReader::Source CsvSourceOf(std::string_view text);

/// A record of a small file, taken apart.
struct CsvRow {
  std::size_t line = 0;
  std::vector<std::string> cells;
  CsvDamage damage = CsvDamage::None;
};

/// All records of a text.
std::vector<CsvRow> CsvRowsOf(std::string_view text);

}  // namespace corvane
