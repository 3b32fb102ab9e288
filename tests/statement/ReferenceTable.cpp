#include "statement/ReferenceTable.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace corvane {

namespace {

std::vector<std::string> CellsOf(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> cells;
  for (std::string cell; std::getline(stream, cell, ',');) cells.push_back(cell);
  return cells;
}

}  // namespace

std::vector<ReferenceRow> ReadReferenceTable(const std::string& name) {
  std::ifstream file(std::string(CORVANE_REFERENCE_DIR) + "/" + name);
  std::string line;
  std::getline(file, line);
  const std::vector<std::string> headings = CellsOf(line);
  std::vector<ReferenceRow> rows;
  while (std::getline(file, line)) {
    const std::vector<std::string> cells = CellsOf(line);
    ReferenceRow row;
    for (std::size_t i = 0; i < headings.size(); ++i) row[headings[i]] = cells.at(i);
    rows.push_back(row);
  }
  if (rows.empty()) throw std::runtime_error("reference table without rows: " + name);
  return rows;
}

}  // namespace corvane
