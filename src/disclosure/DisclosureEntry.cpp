#include "disclosure/DisclosureEntry.h"

namespace corvane {

namespace {

using Entry = DisclosureEntry;

constexpr FieldName<Entry> kFields[] = {
    {"txtTierPerNum", &Entry::txtTierPerNum},
    {"txtBeginMonth", &Entry::txtBeginMonth},
    {"txtBeginYear", &Entry::txtBeginYear},
    {"txtDiscAPY", &Entry::txtDiscAPY},
    {"txtBal", &Entry::txtBal},
    {"txtIntRateA", &Entry::txtIntRateA},
    {"txtTerm", &Entry::txtTerm},
    {"txtDailyRateFactor", &Entry::txtDailyRateFactor},
    {"tStartDate", &Entry::tStartDate},
    {"tEndDate", &Entry::tEndDate},
    {"txtWdrwlPeriods", &Entry::txtWdrwlPeriods},
    {"txtBtwnReqIntWdrwl", &Entry::txtBtwnReqIntWdrwl},
};

}  // namespace

std::span<const FieldName<Entry>> Entry::Fields() {
  return kFields;
}

}  // namespace corvane
