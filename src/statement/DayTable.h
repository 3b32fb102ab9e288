#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "account/Refusal.h"
#include "statement/DailyBalances.h"

namespace corvane {

// Days as a table gives them: cells copied from a spreadsheet, or a CSV file. A line is a balance,
// or a balance and a rate; either may have a date before it. A first line that names the columns is
// left out. A cell is read like a pasted number, and one that could mean something else refuses the
// whole table by the number of its line.

/// What a line of a table says of a day. An empty text says nothing.
struct DayLine {
  std::size_t number = 0;    ///< in the table, the first line being 1
  std::optional<Date> date;  ///< in all lines of a table or in none
  DayEntry day;              ///< numbers as they would be typed
};

struct DayTable {
  bool hasDates = false;
  bool hasBalances = true;  ///< else the lines are rates
  std::vector<DayLine> lines;
};

/// The cells that are in the clipboard, parted by tabs. A single column holds rates where they are
/// pasted into one.
std::variant<DayTable, Refusal> ReadCopiedTable(std::string_view copied, bool singleIsRate);

/// A file whose cells are parted by commas, semicolons or tabs (see Csv.h); amounts that hold a
/// comma stand in quotes.
std::variant<DayTable, Refusal> ReadCsvTable(std::string_view csv);

/// Whether a copied text is a table: one cell alone is pasted into its field.
bool IsTable(std::string_view copied);

/// Why a table is refused; nothing of it is taken then.
Refusal RefuseTable(const std::string& why);
Refusal RefuseLine(std::size_t number, const std::string& why);

}  // namespace corvane
