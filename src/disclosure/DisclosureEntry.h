#pragma once

#include <string>

namespace corvane {

/// One field of the entry window: what it shows and whether the person can type into it.
struct EntryField {
  std::string text;
  bool enabled = true;
};

/// The entry window's fields under the names of its controls.
struct DisclosureEntry {
  EntryField txtTierPerNum;
  EntryField txtBeginMonth;
  EntryField txtBeginYear;
  EntryField txtDiscAPY;
  EntryField txtBal;
  EntryField txtIntRateA;
  EntryField txtTerm;
  EntryField txtDailyRateFactor;
  EntryField tStartDate;
  EntryField tEndDate;
  EntryField txtWdrwlPeriods;
  EntryField txtBtwnReqIntWdrwl;
};

/// Each field with its control name, in tab order.
struct EntryFieldName {
  const char* name;
  EntryField DisclosureEntry::*field;
};

inline constexpr EntryFieldName kEntryFields[] = {
    {"txtTierPerNum", &DisclosureEntry::txtTierPerNum},
    {"txtBeginMonth", &DisclosureEntry::txtBeginMonth},
    {"txtBeginYear", &DisclosureEntry::txtBeginYear},
    {"txtDiscAPY", &DisclosureEntry::txtDiscAPY},
    {"txtBal", &DisclosureEntry::txtBal},
    {"txtIntRateA", &DisclosureEntry::txtIntRateA},
    {"txtTerm", &DisclosureEntry::txtTerm},
    {"txtDailyRateFactor", &DisclosureEntry::txtDailyRateFactor},
    {"tStartDate", &DisclosureEntry::tStartDate},
    {"tEndDate", &DisclosureEntry::tEndDate},
    {"txtWdrwlPeriods", &DisclosureEntry::txtWdrwlPeriods},
    {"txtBtwnReqIntWdrwl", &DisclosureEntry::txtBtwnReqIntWdrwl},
};

/// The control name of a field.
const char* NameOf(EntryField DisclosureEntry::*field);

}  // namespace corvane
