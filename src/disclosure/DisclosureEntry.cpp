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

constexpr DecimalLimit kDecimals[] = {
    {"txtBal", 2, "bal"},
    {"txtIntRateA", 4, "int"},
    {"txtDiscAPY", 2, "apy"},
};

}  // namespace

std::span<const FieldName<Entry>> Entry::Fields() {
  return kFields;
}

std::span<const DecimalLimit> Entry::Decimals() {
  return kDecimals;
}

}  // namespace corvane
