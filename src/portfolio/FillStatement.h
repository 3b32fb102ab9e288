#pragma once

#include "portfolio/CellEntry.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// A statement as a person would have typed it from the rows of a file.
struct FilledStatement {
  StatementCheck check;                   ///< with its result unless it was refused
  std::optional<double> computedAverage;  ///< of the daily balances, currency
  Told told;
};

/// Types the rows into setup, tier table, daily balances and period, and goes through the checks of
/// each window in its turn. An average and interest that the row gives are typed over those that
/// the days gave.
FilledStatement FillStatement(const AccountRows& account);

}  // namespace corvane
