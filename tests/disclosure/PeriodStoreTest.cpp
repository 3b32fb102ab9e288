#include "disclosure/PeriodStore.h"

#include <gtest/gtest.h>

#include "formulas/PeriodArrays.h"
#include "shell/SessionRecord.h"

namespace corvane {
namespace {

TEST(PeriodStore, WhatIsStoredComesBackAsTheFieldsShowIt) {
  // In the order of the fields; the number of periods is not stored.
  const char* cases[][2][12] = {
      {{"4", "3", "2023", "5.4", "1000", "5.1234", "365.5", "1/360", "02-29-2024", "12-31-9999",
        "12", "1"},
       {"", "03", "2023", "5.40", "1000.00", "5.1234", "365.5", "1/360", "02-29-2024", "12-31-9999",
        "12", "1"}},
      {{"", "x", "99999", "0", "-", "5", "0", "typed", "02-29-2023", "__-__-____", "", "."},
       {"", "", "", "", "", "5.00", "", "typed", "__-__-____", "__-__-____", "", ""}},
  };
  for (const auto& [typed, shown] : cases) {
    SessionRecord session;
    SizePeriodArrays(session);
    DisclosureEntry entry;
    for (int i = 0; i < 12; ++i) (entry.*kEntryFields[i].field).text = typed[i];
    StoreEntry(session, 10, entry);
    entry = StoredEntry(session, 10);
    for (int i = 0; i < 12; ++i) {
      EXPECT_EQ((entry.*kEntryFields[i].field).text, shown[i]) << kEntryFields[i].name;
    }
  }
}

}  // namespace
}  // namespace corvane
