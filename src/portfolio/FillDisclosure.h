#pragma once

#include "disclosure/DisclosureCheck.h"
#include "portfolio/CellEntry.h"

namespace corvane {

/// A disclosure as a person would have typed it from the rows of a file.
struct FilledDisclosure {
  DisclosureCheck check;  ///< with its result unless it was refused
  Told told;
};

/// Types the rows into setup, tier table and entries, and goes through the checks of each window in
/// its turn. An empty cell leaves what the window starts with or carries over. A refused entry
/// stays in the check as it was typed.
FilledDisclosure FillDisclosure(std::span<const PortfolioRow> rows);

}  // namespace corvane
