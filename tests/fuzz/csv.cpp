#include <algorithm>

#include "Fuzz.h"
#include "support/Csv.h"

using namespace corvane;

namespace {

struct Read {
  std::vector<std::vector<std::string>> records;
  std::size_t lastLine = 0;

  bool operator==(const Read&) const = default;
};

/// All records of a text that comes in blocks of so many bytes.
Read ReadInBlocks(std::string_view text, std::size_t block) {
  CsvReader reader([text, block](std::span<char> into) mutable {
    const std::size_t size = std::min({block, into.size(), text.size()});
    std::copy_n(text.begin(), size, into.begin());
    text.remove_prefix(size);
    return size;
  });
  Read read;
  while (const CsvRecord* record = reader.Next()) {
    DEMAND(record->line > read.lastLine);
    read.lastLine = record->line;
    std::vector<std::string>& cells = read.records.emplace_back();
    std::string buffer;
    for (const std::string_view cell : record->cells) cells.emplace_back(CsvText(cell, buffer));
  }
  return read;
}

}  // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const Read whole = ReadInBlocks(text, size + 1);
  DEMAND(ReadInBlocks(text, 1) == whole);
  DEMAND(ReadInBlocks(text, 7) == whole);
  return 0;
}
