#include "disclosure/PeriodStore.h"

#include <gtest/gtest.h>

#include "formulas/PeriodArrays.h"
#include "shell/SessionRecord.h"

namespace corvane {
namespace {

TEST(PeriodStore, WhatIsStoredComesBackAsTheFieldsShowIt) {
  const struct {
    const char* field;
    const char *typed, *shown;
  } cases[] = {
      {"txtBeginMonth", "3", "03"},
      {"txtBeginMonth", "x", ""},
      {"txtBeginYear", "2023", "2023"},
      {"txtBeginYear", "99999", ""},
      {"txtDiscAPY", "5.4", "5.40"},
      {"txtBal", "1000", "1000.00"},
      {"txtBal", "-", ""},
      {"txtBal", "0", ""},
      {"txtIntRateA", "5.1234", "5.1234"},
      {"txtIntRateA", "5", "5.00"},
      {"txtTerm", "365.5", "365.5"},
      {"txtTerm", "0", ""},
      {"txtDailyRateFactor", "1/360", "1/360"},
      {"txtDailyRateFactor", "typed", "typed"},
      {"tStartDate", "02-29-2024", "02-29-2024"},
      {"tEndDate", "02-29-2023", "__-__-____"},
      {"txtWdrwlPeriods", "12", "12"},
      {"txtBtwnReqIntWdrwl", "1.5", "1.5"},
  };
  for (const auto& c : cases) {
    for (const EntryFieldName& known : kEntryFields) {
      if (std::string(known.name) != c.field) continue;
      SessionRecord session;
      SizePeriodArrays(session);
      DisclosureEntry entry;
      (entry.*known.field).text = c.typed;
      StoreEntry(session, 10, entry);
      EXPECT_EQ((StoredEntry(session, 10).*known.field).text, c.shown) << c.field << c.typed;
    }
  }
}

}  // namespace
}  // namespace corvane
