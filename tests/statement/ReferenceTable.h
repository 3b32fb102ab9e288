#pragma once

#include <map>
#include <string>
#include <vector>

namespace corvane {

/// A row of a reference table: its cells by their column's heading.
using ReferenceRow = std::map<std::string, std::string>;

/// Reads a comma-separated table of tests/reference; throws when it is missing or has no rows.
std::vector<ReferenceRow> ReadReferenceTable(const std::string& name);

}  // namespace corvane
