#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// What a run writes for a file of this text.
std::string RunText(std::string_view file, std::string_view balances = {}, int threads = 2);

/// The cells of a row by the names of their columns.
using NamedCells = std::map<std::string, std::string>;

/// The rows of a text by its header.
std::vector<NamedCells> RowsOf(std::string_view text);

/// The text of a file: a header of all columns that occur, and the rows.
std::string FileOf(const std::vector<NamedCells>& rows);

}  // namespace corvane
