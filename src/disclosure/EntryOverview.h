#pragma once

#include <string>
#include <vector>

#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// An entry that was made before, as the list beside the fields shows it. Texts are empty where
/// nothing was typed or computed.
struct EntryLine {
  int number = 1;         ///< of the entry
  std::string name;       ///< "2" for a period or tier, "2 low" and "2 high" for ends of a tier
  std::string rate;       ///< percent a year
  std::string balance;    ///< currency
  std::string disclosed;  ///< percent
  /// Percent: of a tier its own, of a stepped account that of all periods up to the newest one, and
  /// with that one only.
  std::string computed;
};

/// Whether the account is entered in more than one go, so that there is something to list.
bool HasOverview(const DisclosureSetup& setup);

/// "Entry 3 of 19"; "Entry 1" while the number of periods is not known.
std::string EntryHeading(const DisclosureCheck& check);

/// The entries that were kept, in their order. Those that are completed bear what they come to.
std::vector<EntryLine> EntriesSoFar(const DisclosureCheck& check);

}  // namespace corvane
