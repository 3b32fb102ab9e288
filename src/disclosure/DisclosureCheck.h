#pragma once

#include <optional>
#include <vector>

#include "account/TierTable.h"
#include "disclosure/DisclosureEntry.h"
#include "disclosure/DisclosureSetup.h"
#include "formulas/CheckApy.h"

namespace corvane {

/// One period, tier or tier end of a computed account.
struct ResultRow {
  int number = 1;                 ///< of the period or tier
  std::optional<double> balance;  ///< currency; of a stepped account in its first row only
  std::vector<double> rates;      ///< percent a year; by method B of every tier up to this one
  double term = 0;                ///< as entered, days or N-unit periods
  double interest = 0;            ///< currency
  double disclosedApy = 0;        ///< percent
  /// The APY and what it comes to; of a stepped account in the newest row only, because the APY of
  /// a part of the term is not the account's.
  std::optional<double> apy;
  std::optional<Verdict> verdict;
};

struct DisclosureResult {
  std::vector<ResultRow> rows;
  double interest = 0;      ///< of the newest row's account: of all periods, of the tier
  double factorDays = 365;  ///< days of the year of the daily rate factor
};

/// One check of a disclosure or advertisement: what was entered, as it was entered, and what was
/// found. A new account is a new value.
struct DisclosureCheck {
  DisclosureSetup setup;
  TierTable tiers;
  std::vector<DisclosureEntry> entries;  ///< the periods, tiers or tier ends, as they were left
  int completed = 0;                     ///< how many of them are done, up to the one shown
  std::optional<DisclosureResult> result;
};

/// Continue of the setup window: takes the choices over. Entries stay while the kind of account is
/// the same; another number of days in the year empties their daily rate factors. The notice says
/// that 29 February will be counted, as a year of 366 days demands; the choices are changed with
/// it, and an interval that is no number becomes "0".
CheckOutcome ContinueSetup(DisclosureCheck& check, DisclosureSetup& choices);

/// The tier table is left by Continue or Back: entries made for other tiers are void.
void TakeTiers(DisclosureCheck& check, const TierTable& tiers);

}  // namespace corvane
