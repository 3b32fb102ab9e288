#include "statement/DayTable.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <span>
#include <utility>

#include "account/DateEntry.h"
#include "account/NumericEntry.h"
#include "support/Csv.h"

namespace corvane {

namespace {

constexpr std::size_t kBalanceDecimals = 2;
constexpr std::size_t kRateDecimals = 4;

struct Line {
  std::size_t number = 0;
  std::vector<std::string> cells;
  CsvDamage damage = CsvDamage::None;
};

// ---- Lines and cells

/// A line without the empty cells at its end.
Line LineOf(const CsvRecord& record) {
  Line line{record.line, {}, record.damage};
  std::string buffer;
  for (const std::string_view cell : record.cells) line.cells.emplace_back(CsvText(cell, buffer));
  while (line.cells.size() > 1 && Trim(line.cells.back()).empty()) line.cells.pop_back();
  return line;
}

bool IsEmpty(const Line& line) {
  return line.damage == CsvDamage::None && line.cells.size() == 1 &&
         Trim(line.cells.front()).empty();
}

bool NamesColumn(std::string_view cell) {
  constexpr std::array kNames{"balance", "rate", "date", "day", "amount", "ledger", "collected"};
  std::string lower(cell);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return std::ranges::any_of(kNames,
                             [&lower](const char* name) { return lower.find(name) != lower.npos; });
}

bool BeginsWithoutLetter(std::string_view cell) {
  const auto text = Trim(cell);
  return !text.empty() && !std::isalpha(static_cast<unsigned char>(text.front()));
}

/// No cell of a heading can be an amount or a date.
bool IsHeading(const Line& line) {
  return std::ranges::any_of(line.cells, NamesColumn) &&
         std::ranges::none_of(line.cells, BeginsWithoutLetter);
}

/// The lines of a table without its heading and without empty lines at the end.
std::vector<Line> LinesOfTable(CsvReader& table) {
  std::vector<Line> lines;
  while (const CsvRecord* record = table.Next()) lines.push_back(LineOf(*record));
  while (!lines.empty() && IsEmpty(lines.back())) lines.pop_back();
  if (!lines.empty() && IsHeading(lines.front())) lines.erase(lines.begin());
  return lines;
}

// ---- What a line says

Refusal RefuseCell(std::size_t line, const std::string& cell, const char* what) {
  constexpr std::size_t kShown = 24;
  const std::string shown = cell.size() > kShown ? "The cell" : '"' + cell + '"';
  return RefuseLine(line, shown + " is no " + what + ".");
}

std::size_t DecimalsOf(const std::string& number) {
  const auto point = number.find('.');
  return point == number.npos ? 0 : number.size() - point - 1;
}

/// The number in a cell as it would be typed; an empty cell stays empty.
std::optional<std::string> ReadNumber(const std::string& cell, const char* kind,
                                      std::size_t decimals) {
  if (Trim(cell).empty()) return "";
  const auto number = CleanPastedNumber(cell, kind);
  return number && DecimalsOf(*number) <= decimals ? number : std::nullopt;
}

std::optional<std::string> ReadRate(const std::string& cell) {
  const auto rate = ReadNumber(cell, "int", kRateDecimals);
  return rate && NumericValue(*rate) >= 0 ? rate : std::nullopt;
}

/// Takes the cells of a line off from the front, as far as the table has such columns.
std::variant<DayLine, Refusal> ReadLine(const DayTable& table, const Line& line) {
  DayLine read{.number = line.number, .date = {}, .day = {}};
  std::span<const std::string> cells = line.cells;
  if (table.hasDates) {
    read.date = ReadPastedDate(cells.front());
    if (!read.date) return RefuseCell(line.number, cells.front(), "date");
    cells = cells.subspan(1);
    if (cells.empty()) return RefuseLine(line.number, "There is no balance.");
  }
  if (table.hasBalances) {
    const auto balance = ReadNumber(cells.front(), "bal", kBalanceDecimals);
    if (!balance || (read.date && balance->empty())) {
      return RefuseCell(line.number, cells.front(), "balance");
    }
    read.day.balance = *balance;
    cells = cells.subspan(1);
  }
  if (cells.empty()) return read;
  const auto rate = ReadRate(cells.front());
  if (!rate) return RefuseCell(line.number, cells.front(), "rate");
  read.day.rate = *rate;
  if (cells.size() > 1) return RefuseLine(line.number, "There are too many cells.");
  return read;
}

std::variant<DayTable, Refusal> ReadTable(std::vector<Line> lines, bool singleIsRate) {
  const auto damaged =
      std::ranges::find_if(lines, [](const Line& line) { return line.damage != CsvDamage::None; });
  if (damaged != lines.end()) return RefuseLine(damaged->number, DamageText(damaged->damage));
  const auto first = std::ranges::find_if_not(lines, IsEmpty);
  if (first == lines.end()) return RefuseTable("There are no balances.");
  DayTable table{.hasDates = ReadPastedDate(first->cells.front()).has_value(), .lines = {}};
  table.hasBalances = !singleIsRate || std::ranges::any_of(lines, [](const Line& line) {
    return line.cells.size() > 1;
  });
  if (table.hasDates) std::erase_if(lines, IsEmpty);
  for (const Line& line : lines) {
    auto read = ReadLine(table, line);
    if (const auto* refusal = std::get_if<Refusal>(&read)) return *refusal;
    table.lines.push_back(std::get<DayLine>(std::move(read)));
  }
  return table;
}

// ---- CSV

bool IsDigits(std::string_view text) {
  return std::ranges::all_of(text, [](unsigned char c) { return std::isdigit(c); });
}

/// Two cells that a comma of one amount may have parted: "$1" and "234.56".
bool MayBeOneAmount(std::string_view whole, std::string_view rest) {
  constexpr std::size_t kGroup = 3;
  whole.remove_prefix(std::min(whole.find_first_not_of(" -$"), whole.size()));
  const auto group = rest.substr(0, rest.find('.'));
  return !whole.empty() && whole.size() <= kGroup && IsDigits(whole) && group.size() == kGroup &&
         IsDigits(group);
}

std::optional<Refusal> CheckThousands(const std::vector<Line>& lines) {
  for (const auto& [number, cells, damage] : lines) {
    for (std::size_t k = 1; k < cells.size(); ++k) {
      if (!MayBeOneAmount(cells[k - 1], cells[k])) continue;
      return RefuseLine(number,
                        cells[k - 1] + ',' + cells[k] +
                            " may be one amount or two. Put amounts with commas in quotes.");
    }
  }
  return std::nullopt;
}

}  // namespace

std::variant<DayTable, Refusal> ReadCopiedTable(std::string_view copied, bool singleIsRate) {
  CsvReader reader(CsvSourceOf(copied), {.separator = '\t', .keepsEmptyLines = true});
  return ReadTable(LinesOfTable(reader), singleIsRate);
}

std::variant<DayTable, Refusal> ReadCsvTable(std::string_view csv) {
  CsvReader reader(CsvSourceOf(csv), {.separator = std::nullopt, .keepsEmptyLines = true});
  if (*reader.Refusal() != '\0') return RefuseTable(reader.Refusal());
  const std::vector<Line> lines = LinesOfTable(reader);
  const auto refusal = reader.Separator() == ',' ? CheckThousands(lines) : std::nullopt;
  if (refusal) return *refusal;
  return ReadTable(lines, false);
}

bool IsTable(std::string_view copied) {
  const auto last = copied.find_last_not_of("\r\n");
  return last != copied.npos && copied.substr(0, last).find_first_of("\t\n") != copied.npos;
}

Refusal RefuseTable(const std::string& why) {
  return {why + "\nNothing was filled in.", FieldAt({})};
}

Refusal RefuseLine(std::size_t number, const std::string& why) {
  return RefuseTable("Line " + std::to_string(number) + ": " + why);
}

}  // namespace corvane
