#pragma once

#include <span>
#include <string>

#include "account/Field.h"
#include "account/NumericEntry.h"
#include "support/Dates.h"

namespace corvane {

/// The fields of the entry window under the names of its controls, in tab order: a regular account,
/// a period of a stepped one, a tier, or an end of a tier.
struct DisclosureEntry {
  Field txtTierPerNum;  ///< number of periods or tiers
  Field txtBeginMonth;
  Field txtBeginYear;
  Field txtDiscAPY;   ///< percent
  Field txtBal;       ///< currency
  Field txtIntRateA;  ///< percent a year
  Field txtTerm;      ///< days or compounding periods; empty or 0 leaves the counting to the dates
  Field txtDailyRateFactor;
  Field tStartDate{.text = std::string(kEmptyDateMask)};
  Field tEndDate{.text = std::string(kEmptyDateMask)};
  Field txtWdrwlPeriods;     ///< W
  Field txtBtwnReqIntWdrwl;  ///< M, or N where interest is withdrawn every so many days

  static std::span<const FieldName<DisclosureEntry>> Fields();
  static std::span<const DecimalLimit> Decimals();
  static std::span<const OptionName<DisclosureEntry>> Options() { return {}; }

  bool IsOpen(const char* control) const { return corvane::IsOpen(*this, control); }
};

}  // namespace corvane
