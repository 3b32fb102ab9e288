#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "account/NumericEntry.h"
#include "account/Refusal.h"
#include "formulas/AccountTerms.h"

namespace corvane {

inline constexpr int kFewestTiers = 2;
inline constexpr int kMostTiers = 10;

inline constexpr DecimalLimit kTierRateDecimals = {"txtInt", 4, "int"};
inline constexpr DecimalLimit kTierBoundDecimals = {"txt_bne", 2, "bal"};

/// The tier table as it was typed. A tier's lower bound is the upper bound of the tier below it;
/// the first tier has no lower bound and the last no upper one.
struct TierTable {
  struct Row {
    std::string rate;          ///< percent a year
    std::string notExceeding;  ///< currency, the upper bound
  };

  int count = 0;  ///< 2 to 10, 0 while none is chosen
  std::array<Row, kMostTiers> rows;

  /// The row of a tier, which counts from 1.
  Row& Of(int tier) { return rows.at(static_cast<std::size_t>(tier - 1)); }
  const Row& Of(int tier) const { return rows.at(static_cast<std::size_t>(tier - 1)); }
};

/// Why the table is refused, and whether the box that the refusal names is emptied.
struct TierRefusal {
  Refusal refusal;
  int element = 1;  ///< of the field array that the refusal names
  bool clearsBox = true;
};

/// The checks of Continue in their order.
std::optional<TierRefusal> CheckTierTable(const TierTable& table);

/// The table without the texts that its number of tiers has no use for.
TierTable WithoutUnusedTiers(const TierTable& table);

/// Whether two tables mean the same tiers, however their numbers were typed.
bool SameTiers(const TierTable& one, const TierTable& other);

/// The tiers of a table, lowest first; what is no number counts as 0.
std::vector<Tier> TiersOf(const TierTable& table);

/// The name of an element of a field array: "txt_bne(3)".
std::string ElementName(const char* array, int index);

}  // namespace corvane
