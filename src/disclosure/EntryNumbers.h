#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "disclosure/DisclosureEntry.h"

namespace corvane {

/// What the texts of an entry say as numbers, read once for all who look at them; nothing where a
/// text is no number.
struct EntryNumbers {
  explicit EntryNumbers(const DisclosureEntry& entry);

  std::optional<double> periodNumber;
  std::optional<std::int16_t> beginMonth, beginYear;
  std::optional<double> disclosedApy;  ///< percent
  std::optional<double> balance;       ///< currency
  std::optional<double> rate;          ///< percent a year
  std::optional<double> term;          ///< days or compounding periods
  std::optional<double> factorDays;    ///< of the year, in the daily rate factor
  std::optional<double> withdrawals;   ///< W
  std::optional<double> distance;      ///< M, or N where interest is withdrawn every so many days

  /// Beginning month and year; not ok() where they name no month.
  std::chrono::year_month Begin() const;
};

}  // namespace corvane
