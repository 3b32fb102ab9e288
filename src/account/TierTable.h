#pragma once

#include <optional>
#include <string>

#include "account/Refusal.h"
#include "account/Table.h"

namespace corvane {

struct SessionRecord;

inline constexpr int kFewestTiers = 2;
inline constexpr int kMostTiers = 10;

/// The boxes of the tier window under the names of its controls. The last tier has no upper bound
/// and the first no lower one.
struct TierTable {
  int tiers = 0;  ///< 2 to 10, 0 while none is chosen
  Table<std::string> txtInt{1, 10};
  Table<std::string> TxtAbove{2, 10};
  Table<std::string> txt_bne{1, 9};
};

/// Why the table is refused, and whether the box that the refusal names is emptied.
struct TierRefusal {
  Refusal refusal;
  bool clearsBox = true;
};

/// Fills every lower bound with the upper bound of the tier below it.
void FillLowerBounds(TierTable& table);

/// The checks of Continue in their order.
std::optional<TierRefusal> CheckTierTable(const TierTable& table);

/// Empties the boxes that the chosen number of tiers has no use for.
void ClearUnusedTiers(TierTable& table);

/// Stores rates, bounds, widths and the number of tiers; empty boxes store 0. Sets TierRecalc when
/// a stored value changed. Does nothing while no number of tiers is chosen.
void StoreTierTable(SessionRecord& session, const TierTable& table);

/// The stored table as the boxes show it: rates with two to four decimals, bounds with two, a
/// value of 0 as an empty box.
TierTable StoredTierTable(const SessionRecord& session);

/// Entries made for an earlier table are void once a stored value has changed.
void DropEntriesOfChangedTable(SessionRecord& session);

/// The interest by day of an earlier computation is not that of a changed table.
void EndDetailOfChangedTable(SessionRecord& session);

/// The name of an element of a field array: "txt_bne(3)".
std::string ElementName(const char* array, int index);

}  // namespace corvane
